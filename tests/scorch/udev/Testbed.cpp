// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/udev/Testbed.h"

#include <umockdev.h>

#include <map>
#include <vector>

struct Testbed::Bed {
    UMockdevTestbed *testbed = umockdev_testbed_new();
    std::map<std::string, std::string> paths; ///< Of the block devices, below /sys.

    ~Bed() { g_object_unref(testbed); }

    std::string add(const char *subsystem, const std::string &name, const char *parent,
                    const std::map<std::string, std::string> &attributes,
                    const std::map<std::string, std::string> &properties) {
        const auto list = [](const std::map<std::string, std::string> &entries) {
            std::vector<gchar *> texts;
            for (const auto &[key, value] : entries) {
                texts.push_back(g_strdup(key.c_str()));
                texts.push_back(g_strdup(value.c_str()));
            }
            texts.push_back(nullptr);
            return texts;
        };
        std::vector<gchar *> attributeTexts = list(attributes);
        std::vector<gchar *> propertyTexts = list(properties);
        gchar *path = umockdev_testbed_add_devicev(testbed, subsystem, name.c_str(), parent,
                                                   attributeTexts.data(), propertyTexts.data());
        for (const auto &texts : {attributeTexts, propertyTexts}) {
            for (gchar *text : texts) {
                g_free(text);
            }
        }
        std::string result = path != nullptr ? path : "";
        g_free(path);
        return result;
    }
};

Testbed::Testbed() : bed_(std::make_unique<Bed>()) {
    folder_.write("control", "");
}

Testbed::~Testbed() = default;

void Testbed::put(const std::string &name, const std::string &vendor, const std::string &model) {
    const std::string drive = bed_->add("scsi", name + ":0:0:0", nullptr,
                                        {{"vendor", vendor}, {"model", model}, {"rev", "1.00\n"}},
                                        {{"DEVTYPE", "scsi_device"}});
    bed_->paths[name] = bed_->add("block", name, drive.c_str(), {{"events_poll_msecs", "-1\n"}},
                                  {{"DEVTYPE", "disk"}, {"DEVNAME", "/dev/" + name}});
}

void Testbed::putDisk(const std::string &name) {
    bed_->paths[name] =
        bed_->add("block", name, nullptr, {}, {{"DEVTYPE", "disk"}, {"DEVNAME", "/dev/" + name}});
}

void Testbed::tell(const std::string &name, const std::string &action) {
    umockdev_testbed_uevent(bed_->testbed, bed_->paths.at(name).c_str(), action.c_str());
}

void Testbed::tellOfMedium(const std::string &name) {
    const std::string &path = bed_->paths.at(name);
    umockdev_testbed_set_property(bed_->testbed, path.c_str(), "DISK_MEDIA_CHANGE", "1");
    tell(name, "change");
}

void Testbed::remove(const std::string &name) {
    tell(name, "remove");
    umockdev_testbed_remove_device(bed_->testbed, bed_->paths.at(name).c_str());
}

void Testbed::setPolling(const std::string &name, int milliseconds) {
    umockdev_testbed_set_attribute(bed_->testbed, bed_->paths.at(name).c_str(), "events_poll_msecs",
                                   std::to_string(milliseconds).c_str());
}

void Testbed::setCommonPolling(int milliseconds) {
    const std::string folder = "/sys/module/block/parameters";
    gchar *const root = umockdev_testbed_get_root_dir(bed_->testbed);
    const std::filesystem::path real = std::string(root) + folder;
    g_free(root);
    std::filesystem::create_directories(real);
    folder_.write(real / "events_dfl_poll_msecs", std::to_string(milliseconds) + '\n');
}
