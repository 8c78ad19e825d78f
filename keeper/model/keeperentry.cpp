// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperentry.h"

#include "keeper/model/keeperkinds.h"
#include "storage/sealing/secretbytes.h"

#include <algorithm>
#include <utility>

KeeperText::KeeperText(quint8 number, bool isHidden, QString caption, QString content)
    : id(number)
    , isSecret(isHidden)
    , name(std::move(caption))
    , text(std::move(content))
{}

KeeperText &KeeperText::operator=(KeeperText other) noexcept
{
    std::swap(id, other.id);
    std::swap(isSecret, other.isSecret);
    name.swap(other.name);
    text.swap(other.text);
    return *this;
}

KeeperText::~KeeperText()
{
    if (isSecret)
        SecretBytes::wipe(text);
}

void KeeperText::setText(const QString &other)
{
    if (isSecret)
        SecretBytes::wipe(text);
    text = other;
}

EntryKind KeeperEntry::kind() const
{
    return KeeperKinds::kind(text(KeeperField::Kind));
}

void KeeperEntry::setKind(EntryKind kind)
{
    setText(KeeperField::Kind, KeeperKinds::word(kind));
}

QString KeeperEntry::text(quint8 id) const
{
    const auto field = std::ranges::find(fields, id, &KeeperText::id);
    return field == fields.end() ? QString() : field->text;
}

void KeeperEntry::setText(quint8 id, const QString &text)
{
    const auto field = std::ranges::find(fields, id, &KeeperText::id);
    if (text.isEmpty()) {
        if (field != fields.end())
            fields.erase(field);
    } else if (field != fields.end()) {
        field->setText(text);
    } else {
        fields.append({id, KeeperKinds::isSecret(id), {}, text});
    }
}

QStringList KeeperEntry::tags() const
{
    QStringList tags;
    for (const QString &tag : text(KeeperField::Tags).split(u',', Qt::SkipEmptyParts)) {
        if (const QString trimmed = tag.trimmed(); !trimmed.isEmpty() && !tags.contains(trimmed))
            tags.append(trimmed);
    }
    return tags;
}

void KeeperEntry::setTags(const QStringList &tags)
{
    setText(KeeperField::Tags, tags.join(QStringLiteral(", ")));
}

QDate KeeperEntry::expires() const
{
    return QDate::fromString(text(KeeperField::Expires), Qt::ISODate);
}
