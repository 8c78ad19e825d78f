// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "storage/ansitext.h"

#include <cstring>

namespace {

void tryBytes(QByteArrayView bytes)
{
    const QString text = AnsiText::decode(bytes);
    require(text.size() == bytes.size(), "each byte is one character");
    require(AnsiText::encode(text) == bytes, "every byte survives");
    require(bytes.contains('\0') || AnsiText::isHoldable(text), "what was read can be written");

    const QString field = AnsiText::fieldText(bytes);
    require(!field.endsWith(u' ') && !field.contains(QChar(u'\0')), "a field's text has no padding");
    require(AnsiText::fieldText(AnsiText::field(field, bytes.size())) == field, "a field comes back");
}

void tryText(QStringView text)
{
    const QByteArray bytes = AnsiText::encode(text);
    const QString composed = text.toString().normalized(QString::NormalizationForm_C);
    require(bytes.size() <= composed.size(), "no character takes two bytes");
    require(AnsiText::field(text, 40).size() == 40, "a field is as wide as its width");
    if (AnsiText::isHoldable(text))
        require(AnsiText::decode(bytes) == composed, "a text that can be held comes back");
    else
        require(bytes.contains('?') || bytes.contains('\0'), "what cannot be held shows");

    const QStringView trimmed = AnsiText::trimmedBlanks(text);
    require(!trimmed.startsWith(u' ') && !trimmed.endsWith(u' '), "blanks are trimmed");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    tryBytes(bytes);
    tryText(QString::fromUtf8(bytes));
    QString units(bytes.size() / 2, Qt::Uninitialized);
    if (!units.isEmpty())
        std::memcpy(units.data(), data, std::size_t(units.size()) * 2);
    tryText(units);
    return 0;
}
