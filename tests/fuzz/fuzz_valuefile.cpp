// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "storage/ansitext.h"
#include "storage/valuefile.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList values = ValueFile::decode(asBytes(data, size));
    require(values.size() <= qsizetype(size), "no value comes from nothing");

    const QByteArray written = ValueFile::encode(values);
    const QStringList again = ValueFile::decode(written);
    require(again.size() == values.size(), "no value is lost or made by writing");
    require(ValueFile::encode(again) == written, "writing settles what reading could mistake");
    for (qsizetype i = 0; i < values.size(); ++i) {
        QString expected = values[i];
        for (const QString &separator : {QStringLiteral(","), QStringLiteral("\r"), QStringLiteral("\n")})
            expected.replace(QString(u'"' + separator), QString(u"''" + separator));
        require(again[i] == expected, "only quotes that would close a text change");
    }
    return 0;
}
