// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/settings.h"

#include "storage/recordvalue.h"

Settings::Settings(const DataFolder &folder)
    : m_folder(folder)
{}

QString Settings::text(const TextSetting &setting) const
{
    return RecordValue::decodeText(open(setting.file).read(setting.record));
}

bool Settings::setText(const TextSetting &setting, const QString &text)
{
    SettingsChange change(*this);
    change.setText(setting, text);
    return change.commit();
}

int Settings::number(const NumberSetting &setting) const
{
    return RecordValue::decodeNumber(open(setting.file).read(setting.record));
}

bool Settings::setNumber(const NumberSetting &setting, int number)
{
    SettingsChange change(*this);
    change.setNumber(setting, number);
    return change.commit();
}

QString Settings::tagged(const TaggedSetting &setting) const
{
    return RecordValue::decodeTagged(open(setting.file).read(setting.record));
}

bool Settings::setTagged(const TaggedSetting &setting, const QString &text)
{
    const auto bytes = RecordValue::encodeTaggedText(text, setting.file.recordLength);
    if (!bytes)
        return false;
    ChangeSet change(m_folder);
    change.write(open(setting.file), setting.record, *bytes);
    return change.commit();
}

RecordFile Settings::open(const SettingsFile &file) const
{
    RecordFile records(m_folder, QString::fromLatin1(file.name), file.recordLength);
    // Opening a settings file makes it, empty; where that fails, reading finds nothing and writing says so.
    records.create();
    return records;
}

SettingsChange::SettingsChange(const Settings &settings)
    : m_settings(settings)
    , m_change(settings.m_folder)
{}

void SettingsChange::setText(const TextSetting &setting, const QString &text)
{
    const auto bytes = RecordValue::encodeText(text, setting.file.recordLength);
    if (bytes)
        m_change.write(m_settings.open(setting.file), setting.record, *bytes);
    else
        m_isTooLong = true;
}

void SettingsChange::setNumber(const NumberSetting &setting, int number)
{
    m_change.write(m_settings.open(setting.file), setting.record,
                   RecordValue::encodeNumber(RecordValue::clampedNumber(number)));
}

bool SettingsChange::commit()
{
    return !m_isTooLong && m_change.commit();
}
