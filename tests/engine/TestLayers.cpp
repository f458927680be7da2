// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/engine/LayerRules.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Layers, HoldInThisSourceTree) {
    EXPECT_THAT(layerBreaches(SOURCE_FOLDER), IsEmpty());
}

TEST(Layers, EveryFolderIsLookedAt) {
    for (const char *part : {"engine", "scorch", "cli", "host", "CDBurnerPlugin", "crate"}) {
        EXPECT_GT(layerSourceCount(SOURCE_FOLDER, part), 1U) << part;
    }
}

TEST(Layers, QtIsNotMentionedBelowTheTool) {
    const TemporaryFolder root;
    root.write("engine/A.h", "// like a QString\n");
    root.write("scorch/x/B.cpp", "#include <QFile>\n");
    root.write("cli/CMakeLists.txt", "target_link_libraries(scorch Qt6::Core)\n");
    root.write("crate/C.cpp", "#include <QFile>\n");
    EXPECT_THAT(layerBreaches(root.path()),
                ElementsAre("cli/CMakeLists.txt: mentions Qt6", "engine/A.h: mentions QString",
                            "scorch/x/B.cpp: mentions QFile"));
}

TEST(Layers, ContractIncludesTheStandardLibraryOnly) {
    const TemporaryFolder root;
    root.write("engine/A.h", "#include <string>\n#include <unistd.h>\n#include \"engine/B.h\"\n");
    EXPECT_THAT(layerBreaches(root.path()), ElementsAre("engine/A.h: includes <unistd.h>"));
}

TEST(Layers, ClientsAndEngineMeetInTheContractOnly) {
    const TemporaryFolder root;
    root.write("cli/A.cpp", "#include \"engine/A.h\"\n#include \"scorch/A.h\"\n");
    root.write("CDBurnerPlugin/A.cpp", "#include \"host/A.h\"\n#  include \"scorch/A.h\"\n");
    root.write("scorch/A.cpp", "#include \"engine/A.h\"\n#include \"cli/A.h\"\n");
    EXPECT_THAT(layerBreaches(root.path()),
                ElementsAre("CDBurnerPlugin/A.cpp: includes scorch/A.h",
                            "cli/A.cpp: includes scorch/A.h", "scorch/A.cpp: includes cli/A.h"));
}

TEST(Layers, ToolAndHostMeetInTheProtocolOnly) {
    const TemporaryFolder root;
    root.write("crate/A.cpp", "#include \"host/A.h\"\n#include \"CDBurnerPlugin/A.h\"\n");
    root.write("crate/B.cpp", "#include \"engine/A.h\"\n");
    root.write("CDBurnerPlugin/A.cpp", "#include \"crate/A.h\"\n");
    root.write("host/A.h", "#include \"engine/A.h\"\n");
    EXPECT_THAT(layerBreaches(root.path()),
                ElementsAre("CDBurnerPlugin/A.cpp: includes crate/A.h",
                            "crate/A.cpp: includes CDBurnerPlugin/A.h",
                            "crate/B.cpp: includes engine/A.h", "host/A.h: includes engine/A.h"));
}

TEST(Layers, EachOutsideLibraryHasOneFolder) {
    const TemporaryFolder root;
    root.write("scorch/audio/A.cpp", "#include <libavcodec/avcodec.h>\n");
    root.write("scorch/burner/A.cpp", "#include <libswresample/swresample.h>\n");
    root.write("scorch/iso/A.c", "#include <libisofs/libisofs.h>\n");
    root.write("scorch/isomorphic/A.c", "#include <libisofs/libisofs.h>\n");
    root.write("CDBurnerPlugin/A.cpp", "#include <taglib/tag.h>\n");
    EXPECT_THAT(
        layerBreaches(root.path()),
        ElementsAre("CDBurnerPlugin/A.cpp: includes <taglib/tag.h> outside crate",
                    "scorch/burner/A.cpp: includes <libswresample/swresample.h> outside "
                    "scorch/audio",
                    "scorch/isomorphic/A.c: includes <libisofs/libisofs.h> outside scorch/iso"));
}
