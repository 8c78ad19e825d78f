// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresspages.h"

#include "addressbook/model/addressbook.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The texts that are not empty, one behind the other.
QString joined(std::initializer_list<QString> texts, QLatin1StringView separator)
{
    QStringList parts;
    for (const QString &text : texts) {
        if (!text.isEmpty())
            parts << text;
    }
    return parts.join(separator);
}

/// The sheet cut into equal cards, and how large their texts are.
struct CardGrid {
    int columns;
    int rows;
    QSizeF card;
    TextRole nameRole;
    TextRole role;
    double nameHeight;
    double lineHeight;
    double pictureShare; ///< of the width of a wide card

    QRectF place(int index) const;
};

// In inches. Title and rule take the top, the closing lines the foot.
constexpr double sideMargin = 0.5;
constexpr double topMargin = 1.05;
constexpr double footMargin = 1.0;
constexpr double gap = 0.2;

QRectF CardGrid::place(int index) const
{
    const QPointF corner(sideMargin + (index % columns) * (card.width() + gap),
                         topMargin + (index / columns) * (card.height() + gap));
    return {corner, card};
}

CardGrid gridFor(AddressPages::PerSheet perSheet, const PageSetup &setup)
{
    using AddressPages::PerSheet;
    const bool isLandscape = setup.orientation == PageSetup::Landscape;
    const int shorter = perSheet == PerSheet::Two ? 1 : 2;
    const int longer = int(perSheet) / shorter;
    const bool isSmall = perSheet == PerSheet::Eight;

    CardGrid grid;
    grid.columns = isLandscape ? longer : shorter;
    grid.rows = isLandscape ? shorter : longer;
    const QSizeF sheet = setup.sheet();
    grid.card = {(sheet.width() - 2 * sideMargin - gap * (grid.columns - 1)) / grid.columns,
                 (sheet.height() - topMargin - footMargin - gap * (grid.rows - 1)) / grid.rows};
    grid.nameRole = isSmall ? TextRole::Strong : TextRole::Heading;
    grid.role = isSmall ? TextRole::Small : TextRole::Body;
    grid.nameHeight = isSmall ? 0.22 : 0.28;
    grid.lineHeight = isSmall ? 0.19 : 0.21;
    // Leaves room for a labelled date in a wide font.
    grid.pictureShare = isSmall ? 0.27 : 0.36;
    return grid;
}

QStringList cardTexts(const AddressEntry &entry)
{
    const auto labelled = [&entry](AddressField field) {
        return entry[field].isEmpty() ? QString() : addressLabel(field) + u' ' + entry[field];
    };
    QStringList texts{entry[Address1],     entry[Address2],           AddressPages::townLine(entry),
                      labelled(HomePhone), labelled(MobilePhone),     entry[Email],
                      labelled(BirthDate), labelled(AnniversaryDate), labelled(Fax)};
    texts.removeAll(QString());
    return texts;
}

/// The name and `texts` from the top of `place` downwards; what finds no room is left out.
void placeTexts(Page &page, const CardGrid &grid, QRectF place, const QString &name, const QStringList &texts)
{
    const auto placeLine = [&](const QString &text, TextRole role, double height) {
        if (height > place.height() + 0.001)
            return;
        page.placeText({place.topLeft(), QSizeF(place.width(), height)}, text, role);
        place.setTop(place.top() + height);
    };
    placeLine(name, grid.nameRole, grid.nameHeight);
    for (const QString &text : texts)
        placeLine(text, grid.role, grid.lineHeight);
}

/// The picture at the left of a wide card, at the top of a narrow one, the texts in the rest.
void placeCard(Page &page, const CardGrid &grid, const QRectF &place, const AddressEntry &entry,
               const QString &picture)
{
    const QStringList texts = cardTexts(entry);
    QRectF rest = place;
    if (!picture.isEmpty()) {
        QRectF frame = place;
        if (place.width() > 1.15 * place.height()) {
            frame.setWidth(std::min(grid.pictureShare * place.width(), place.height()));
            rest.setLeft(frame.right() + gap);
        } else {
            const double textHeight = grid.nameHeight + grid.lineHeight * double(texts.size());
            frame.setHeight(std::min(0.5 * place.height(), place.height() - textHeight - gap / 2));
            rest.setTop(frame.bottom() + gap / 2);
        }
        page.placePicture(frame, picture);
    }
    placeTexts(page, grid, rest, entry.fullName(), texts);
}

} // namespace

AddressPages::Source AddressPages::entriesOf(const AddressBook &book, const NameList &names, int first,
                                             int count)
{
    return [&book, &names, first, count](const std::function<bool(const AddressEntry &)> &visit) {
        AddressBook::Reader entries(book);
        const int end = std::min(first + count, names.count());
        for (int row = first; row < end; ++row) {
            const int record = names.recordAt(row);
            if (record != 0 && !visit(entries.read(record)))
                return;
        }
    };
}

bool AddressPages::hasManyPictures(const Source &entries)
{
    constexpr int recommended = 16;
    int pictures = 0;
    entries([&pictures](const AddressEntry &entry) {
        pictures += entry.hasPicture();
        return pictures <= recommended;
    });
    return pictures > recommended;
}

Page AddressPages::entryPage(const AddressEntry &entry, const QString &picturePath,
                             const PageContext &context)
{
    Page page(u"Information For "_s + entry.fullName());
    if (!picturePath.isEmpty())
        page.picture(picturePath, QSizeF(2.5, 2.5)).blankLine();
    page.line(u"Date of Birth: "_s + entry[BirthDate]);
    page.line(
        u"Address:  "_s +
        joined({entry[Address1], entry[Address2], entry[City], entry[State], entry[PostalCode]}, ", "_L1));
    page.line(u"Home Phone: "_s + entry[HomePhone]);
    page.line(u"Mobile Phone: "_s + entry[MobilePhone]);
    page.line(u"Fax:     "_s + entry[Fax]);
    page.line(u"Email:  "_s + entry[Email]);
    page.line(u"Anniversary Date:  "_s + entry[AnniversaryDate]);
    return page.close(context.today, context.style);
}

Page AddressPages::worksheet(const PageContext &context)
{
    Page page(u"Family/Friends Data Worksheet"_s);
    for (const QString &label : {u"Last Name:"_s, u"First Name:"_s, u"Date of  Birth:"_s})
        page.blank(label);
    page.blankLine().line(u"Home information"_s, TextRole::Heading);
    for (const QString &label :
         {u"Address: "_s, u"City: "_s, u"State: "_s, u"Zip Code: "_s, u"Home Phone: "_s, u"Mobile Phone:"_s,
          u"Fax: "_s, u"Email: "_s, u"Anniversary Date: "_s})
        page.blank(label);
    page.blankLine().line(u"Other Important Information and Dates"_s, TextRole::Heading);
    constexpr int linesForNotes = 5;
    for (int i = 0; i < linesForNotes; ++i)
        page.blank({});
    return page.close(context.today, context.style);
}

Page AddressPages::cards(PerSheet perSheet, const Source &entries, const PictureFinder &find,
                         const PageContext &context)
{
    Page page(u"Family/Friends Data"_s);
    const CardGrid grid = gridFor(perSheet, context.setup);
    int placed = 0;
    entries([&](const AddressEntry &entry) {
        const int index = placed++ % int(perSheet);
        if (index == 0 && placed > 1)
            page.breakPage();
        const QString picture = entry.hasPicture() ? find(entry.picture) : QString();
        placeCard(page, grid, grid.place(index), entry, picture);
        return true;
    });
    return page.close(context.today, context.style);
}

QString AddressPages::townLine(const AddressEntry &entry)
{
    const QString region = joined({entry[State], entry[PostalCode]}, " "_L1);
    return joined({entry[City], region}, ", "_L1);
}

QString AddressPages::clipboardText(const AddressEntry &entry)
{
    QStringList lines;
    for (int field = 0; field < AddressFieldCount; ++field) {
        const QString &text = entry[AddressField(field)];
        const QString label = addressLabel(AddressField(field));
        if (!text.isEmpty())
            lines << (label.isEmpty() ? text : label + u' ' + text);
    }
    return lines.join(u'\n');
}
