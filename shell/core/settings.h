// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/changeset.h"
#include "storage/datafolder.h"
#include "storage/recordfile.h"

#include <QString>

/// One of the small random-access files that settings live in.
struct SettingsFile {
    const char *name;
    int recordLength;

    bool operator==(const SettingsFile &other) const
    {
        return QLatin1StringView(name) == QLatin1StringView(other.name) && recordLength == other.recordLength;
    }
};

/// A record that holds a counted text.
struct TextSetting {
    SettingsFile file;
    int record;

    bool operator==(const TextSetting &) const = default;
};

/// A record that holds a whole number: 2 bytes, signed.
struct NumberSetting {
    SettingsFile file;
    int record;
};

/// A record that holds a tagged text.
struct TaggedSetting {
    SettingsFile file;
    int record;
};

/// The household's settings. Nothing is cached: each call opens its file, reads or writes one value and
/// closes it. A missing, short or damaged file reads as the empty value; a write that fails returns false.
class Settings
{
public:
    explicit Settings(const DataFolder &folder);

    QString text(const TextSetting &setting) const;
    [[nodiscard]] bool setText(const TextSetting &setting, const QString &text);

    int number(const NumberSetting &setting) const;
    /// Numbers outside the signed 16-bit range are clamped to it.
    [[nodiscard]] bool setNumber(const NumberSetting &setting, int number);

    QString tagged(const TaggedSetting &setting) const;
    [[nodiscard]] bool setTagged(const TaggedSetting &setting, const QString &text);

private:
    friend class SettingsChange;
    RecordFile open(const SettingsFile &file) const;

    const DataFolder &m_folder;
};

/// Several settings that are written together: all of them, or none.
class SettingsChange
{
public:
    explicit SettingsChange(const Settings &settings);

    void setText(const TextSetting &setting, const QString &text);
    /// Clamped as in `Settings`.
    void setNumber(const NumberSetting &setting, int number);

    /// False, with everything as it was, when a text has no room in its record or the disk refuses.
    [[nodiscard]] bool commit();

private:
    const Settings &m_settings;
    ChangeSet m_change;
    bool m_isTooLong = false;
};
