// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperexport.h"

#include "keeper/model/keeperimport.h"
#include "keeper/model/keeperkinds.h"
#include "keeper/model/keepertexts.h"
#include "shell/core/csvtext.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Common {
    quint8 id;
    QStringView heading;
};

constexpr std::array common{
    Common{KeeperField::Kind, u"Kind"},           Common{KeeperField::Title, u"Title"},
    Common{KeeperField::UserName, u"User name"},  Common{KeeperField::Password, u"Password"},
    Common{KeeperField::Address, u"Web address"}, Common{KeeperField::OneTimeSecret, u"One-time secret"},
    Common{KeeperField::Notes, u"Notes"},         Common{KeeperField::Tags, u"Tags"},
    Common{KeeperField::Member, u"Member"},       Common{KeeperField::Expires, u"Expires"},
    Common{KeeperField::Favourite, u"Favourite"},
};

/// The column of a field; empty for one that has none.
QString headingOf(const KeeperText &field)
{
    for (const Common &column : common) {
        if (column.id == field.id)
            return column.heading.toString();
    }
    if (field.id == KeeperField::Own)
        return KeeperTexts::ownHeading(field);
    const QString caption = KeeperKinds::caption(field);
    return KeeperTexts::isCaption(caption) ? caption : QString();
}

} // namespace

QByteArray KeeperExport::csv(const QList<KeeperEntry> &entries)
{
    QStringList headings;
    for (const Common &column : common)
        headings << column.heading.toString();
    for (const KeeperEntry &entry : entries) {
        for (const KeeperText &field : entry.fields) {
            const QString heading = headingOf(field);
            if (!heading.isEmpty() && !headings.contains(heading))
                headings << heading;
        }
    }
    QString lines = CsvText::line(headings);
    for (const KeeperEntry &entry : entries) {
        QStringList cells(headings.size());
        for (const KeeperText &field : entry.fields) {
            const qsizetype column = headings.indexOf(headingOf(field));
            if (column >= 0) // own fields may have one name
                cells[column] += cells[column].isEmpty() ? field.text : QString(u'\n' + field.text);
        }
        cells[0] = KeeperKinds::name(entry.kind());
        lines += CsvText::line(cells);
    }
    return CsvText::file(lines);
}

QString KeeperExport::fileName()
{
    return CsvText::fileName(u"Password Keeper"_s, {});
}
