// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedkey.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The form of the record; no file is read or written by it.
KeySlots form()
{
    return {DataFolder(QString()), u"Quillery.sealed"_s, "QBACKUP"};
}

std::optional<KeySlots::Content> contentOf(QByteArrayView record)
{
    std::optional<KeySlots::Content> content;
    if (record.size() == SealedKey::recordLength)
        form().parse(record, content);
    return content;
}

} // namespace

SealedKey::SealedKey(QByteArray record, SecretBytes key)
    : m_record(std::move(record))
    , m_key(std::move(key))
{}

SealedKey SealedKey::fresh(const KeyDerivation &derived)
{
    SecretBytes key;
    QByteArray id;
    const QByteArray made = form().made(derived, derived, key, id);
    // There is no recovery code for a set: its slot is free.
    std::optional<KeySlots::Content> content = contentOf(QByteArrayView(made).first(recordLength));
    content->sealedKeys[KeySlots::Recovery - 1].fill('\0');
    return {form().encoded(*content), std::move(key)};
}

std::optional<KeyDerivation> SealedKey::opening(QByteArrayView record, SecretBytes typed)
{
    const std::optional<KeySlots::Content> content = contentOf(record);
    return content ? form().opening(*content, KeySlots::Password, std::move(typed)) : std::nullopt;
}

std::optional<SealedKey> SealedKey::open(QByteArrayView record, const KeyDerivation &derived)
{
    const std::optional<KeySlots::Content> content = contentOf(record);
    if (!content)
        return std::nullopt;
    std::optional<SecretBytes> key = form().open(*content, KeySlots::Password, derived);
    if (!key)
        return std::nullopt;
    return SealedKey(record.toByteArray(), std::move(*key));
}
