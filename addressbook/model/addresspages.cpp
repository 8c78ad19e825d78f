// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresspages.h"

#include "addressbook/model/addressbook.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

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

/// As many as an entry has.
constexpr int mostTexts = 9;

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

/// The lines that a text takes at most, where its place is that wide.
int mostLines(const QString &text, double width, TextRole role)
{
    const double characters =
        width * PageMetrics::charactersPerInch(role == TextRole::Small ? role : TextRole::Body);
    return std::max(1, int(std::ceil(double(text.size()) / characters)));
}

/// The name and `texts` from the top of `place` downwards. Long ones go on on further lines where there is
/// room for all; what finds none is left out.
void placeTexts(Page &page, const CardGrid &grid, QRectF place, const QString &name, const QStringList &texts)
{
    const auto placeText = [&](const QString &text, TextRole role, double height) {
        if (height > place.height() + 0.001)
            return;
        page.placeText({place.topLeft(), QSizeF(place.width(), height)}, text, role);
        place.setTop(place.top() + height);
    };
    const double nameHeight = mostLines(name, place.width(), grid.nameRole) * grid.nameHeight;
    const bool isWhole = nameHeight + double(texts.size()) * grid.lineHeight <= place.height();
    placeText(name, grid.nameRole, isWhole ? nameHeight : grid.nameHeight);
    int lines = 0;
    for (const QString &text : texts)
        lines += mostLines(text, place.width(), grid.role);
    if (lines > texts.size() && lines * grid.lineHeight <= place.height()) {
        placeText(texts.join(u'\n'), grid.role, lines * grid.lineHeight);
        return;
    }
    for (const QString &text : texts)
        placeText(text, grid.role, grid.lineHeight);
}

/// The place of the picture at the left of a wide card or at the top of a narrow one; texts take the `rest`.
QRectF takePicturePlace(const CardGrid &grid, QRectF &rest)
{
    QRectF frame = rest;
    if (rest.width() > 1.15 * rest.height()) {
        frame.setWidth(std::min(grid.pictureShare * rest.width(), rest.height()));
        rest.setLeft(frame.right() + gap);
    } else {
        const double textHeight = grid.nameHeight + grid.lineHeight * mostTexts;
        frame.setHeight(std::min(0.5 * rest.height(), rest.height() - textHeight - gap / 2));
        rest.setTop(frame.bottom() + gap / 2);
    }
    return frame;
}

} // namespace

std::vector<int> AddressPages::recordsOf(const NameList &names, int first, int count)
{
    std::vector<int> records;
    const int end = std::min(first + count, names.count());
    for (int row = first; row < end; ++row) {
        if (const int record = names.recordAt(row); record != 0)
            records.push_back(record);
    }
    return records;
}

AddressPages::Entries AddressPages::entriesOf(const AddressBook &book, std::vector<int> records)
{
    const int all = int(records.size());
    return {all, [&book, records = std::move(records)](int first, int count) {
                AddressBook::Reader reader(book);
                std::vector<AddressEntry> entries;
                const int end = std::min(first + count, int(records.size()));
                for (int i = first; i < end; ++i)
                    entries.push_back(reader.read(records[std::size_t(i)]));
                return entries;
            }};
}

int AddressPages::countPictures(const Entries &entries)
{
    constexpr int atATime = 500;
    int pictures = 0;
    for (int first = 0; first < entries.count && pictures <= recommendedPictures; first += atATime) {
        const std::vector<AddressEntry> some = entries.read(first, atATime);
        pictures += int(std::ranges::count_if(some, &AddressEntry::hasPicture));
    }
    return pictures;
}

Page AddressPages::entryPage(const AddressEntry &entry, const QString &picturePath,
                             const PageContext &context)
{
    Page page(u"Information For "_s + entry.fullName());
    if (!picturePath.isEmpty())
        page.picture(picturePath, QSizeF(2.5, 2.5)).blankLine();
    const QString address =
        joined({entry[Address1], entry[Address2], entry[City], entry[State], entry[PostalCode]}, ", "_L1);
    const std::array<std::pair<QString, QString>, 7> information{
        {{u"Date of Birth: "_s, entry[BirthDate]},
         {u"Address:  "_s, address},
         {u"Home Phone: "_s, entry[HomePhone]},
         {u"Mobile Phone: "_s, entry[MobilePhone]},
         {u"Fax:     "_s, entry[Fax]},
         {u"Email:  "_s, entry[Email]},
         {u"Anniversary Date:  "_s, entry[AnniversaryDate]}}};
    for (const auto &[label, text] : information) {
        if (!text.trimmed().isEmpty())
            page.line(label + text);
    }
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

PageSheets AddressPages::cards(PerSheet perSheet, const Entries &entries, PicturePlaces pictures,
                               const PictureFinder &find, const PageContext &context)
{
    const int each = int(perSheet);
    const int count = std::max(1, (entries.count + each - 1) / each);
    const auto sheet = [=](int index) {
        Page page(u"Family/Friends Data"_s);
        const CardGrid grid = gridFor(perSheet, context.setup);
        int placed = 0;
        for (const AddressEntry &entry : entries.read(index * each, each)) {
            QRectF place = grid.place(placed++);
            if (pictures == PicturePlaces::OnEachCard) {
                const QRectF frame = takePicturePlace(grid, place);
                if (const QString path = entry.hasPicture() ? find(entry.picture) : QString();
                    !path.isEmpty())
                    page.placePicture(frame, path);
            }
            placeTexts(page, grid, place, entry.fullName(), cardTexts(entry));
        }
        return index + 1 == count ? page.close(context.today, context.style) : page;
    };
    return {count, sheet};
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
