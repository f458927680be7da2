// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Device.h"

/// The commands of the drive, named as MMC-5 and SPC-3 name them. Each is called under the drive's
/// lock, with a medium where the table asks for one, and answers with data or sense.
namespace recorder {

// InquiryCommands.cpp
Answer inquiry(Device &device, const Command &command);
Answer requestSense(Device &device, const Command &command);
Answer getConfiguration(Device &device, const Command &command);

// ModeCommands.cpp
Answer modeSense6(Device &device, const Command &command);
Answer modeSense10(Device &device, const Command &command);
Answer modeSelect6(Device &device, const Command &command);
Answer modeSelect10(Device &device, const Command &command);

// SpeedCommands.cpp
Answer getPerformance(Device &device, const Command &command);
Answer setCdSpeed(Device &device, const Command &command);
Answer setStreaming(Device &device, const Command &command);
Answer readBufferCapacity(Device &device, const Command &command);

// MediumCommands.cpp
Answer testUnitReady(Device &device, const Command &command);
Answer startStopUnit(Device &device, const Command &command);
Answer preventAllowMediumRemoval(Device &device, const Command &command);
Answer getEventStatusNotification(Device &device, const Command &command);
Answer mechanismStatus(Device &device, const Command &command);
Answer seek10(Device &device, const Command &command);

// DiscInformationCommands.cpp
Answer readDiscInformation(Device &device, const Command &command);
Answer readTrackInformation(Device &device, const Command &command);
Answer readCapacity(Device &device, const Command &command);
Answer readDiscStructure(Device &device, const Command &command);

// TocCommands.cpp
Answer readTocPmaAtip(Device &device, const Command &command);

// SubChannelCommands.cpp
Answer readSubChannel(Device &device, const Command &command);

// ReadingCommands.cpp
Answer read10(Device &device, const Command &command);
Answer read12(Device &device, const Command &command);
Answer readCd(Device &device, const Command &command);
Answer readCdMsf(Device &device, const Command &command);

// WritingCommands.cpp
Answer write10(Device &device, const Command &command);
Answer write12(Device &device, const Command &command);
Answer synchronizeCache(Device &device, const Command &command);
Answer sendOpcInformation(Device &device, const Command &command);
Answer sendCueSheet(Device &device, const Command &command);
Answer closeTrackSession(Device &device, const Command &command);
Answer blank(Device &device, const Command &command);

} // namespace recorder
