// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// What the tool tells the host's usage collector, always under the target "CDBurn".
namespace usage_event {

inline constexpr const char *open = "CDBurn_Open";
inline constexpr const char *noDrive = "CDBurn_NoDrive";
inline constexpr const char *blankDisc = "CDBurn_Blankdisk";
inline constexpr const char *addFile = "CDBurn_AddFile";
inline constexpr const char *burnStart = "CDBurn_BurnStart";
inline constexpr const char *burnStartAudio = "CDBurn_BurnStart_Audio";
inline constexpr const char *burnStartData = "CDBurn_BurnStart_Data";
inline constexpr const char *burnCancel = "CDBurn_BurnCancel";
inline constexpr const char *burnFail = "CDBurn_BurnFail";
inline constexpr const char *burnOK = "CDBurn_BurnOK";

} // namespace usage_event

/// Sends one event, fire and forget. Without a host context, or a collector in it, the event is
/// lost. Main thread.
void sendUsageEvent(const char *key);
