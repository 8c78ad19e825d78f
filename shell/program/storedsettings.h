// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QSettings;

namespace StoredSettings {

/// Whether everything that `store` was given is on the disk. It writes at its leisure and never takes back a
/// refusal, so a fresh one of the same file is asked.
bool areOnDisk(const QSettings &store);

} // namespace StoredSettings
