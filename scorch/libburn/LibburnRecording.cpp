// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/LibburnRecording.h"

#include "scorch/libburn/OpticalDiscRecording.h"

namespace scorch {

OpticalRecordingFactory libburnRecordingFactory() {
    return [thread = std::make_shared<LibburnThread>()](const RecordingTarget &target,
                                                        const DiscContent &content,
                                                        const std::stop_token &stop) {
        return OpticalDiscRecording::create(thread, target, content, stop);
    };
}

} // namespace scorch
