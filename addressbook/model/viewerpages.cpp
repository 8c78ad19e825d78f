// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/viewerpages.h"

#include "addressbook/model/viewermessages.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/core/tabtext.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Shorter paths are no paths.
constexpr qsizetype shortestPath = 5;

// The picture list, in inches.
constexpr QPointF firstPicture(0.25, 0.8);
constexpr double picturePitch = 2.0;
constexpr QSizeF pictureRoom(1.8, 1.0);
constexpr double pictureScale = 0.1654;
constexpr double dotsPerInch = 96;
constexpr double leastSide = 1.0;
constexpr double nameTop = 1.02;
constexpr QSizeF nameRoom(1.85, 0.39);
constexpr double headTop = 0.38;
constexpr double headHeight = 0.3;

QString plainText(const AddressViewer &viewer, DateStyle style, QLatin1StringView lineEnd)
{
    const QString heading = ViewerPages::heading(viewer.information(), style);
    const bool hasColumn = !heading.isEmpty();
    QString text = ViewerMessages::nameHeading();
    if (hasColumn)
        text += u'\t' + heading;
    text += lineEnd;
    for (int row = 0; row < viewer.count(); ++row) {
        text += TabText::cell(viewer.name(row));
        if (hasColumn)
            text += u'\t' + TabText::cell(viewer.information(row));
        text += lineEnd;
    }
    return text;
}

/// The number behind a name. One that has a column of its own does not stand there as well.
QString telephoneOf(const AddressEntry &entry, Information column)
{
    if (column == Information::HomePhone)
        return {};
    const bool isMobile = entry[HomePhone].isEmpty() && column != Information::MobilePhone;
    return isMobile ? entry[MobilePhone] : entry[HomePhone];
}

bool hasColumn(const AddressViewer &viewer)
{
    return viewer.information() != Information::Pictures;
}

/// The characters of a usual cell, from rows spread over the whole list.
double usualLength(const AddressViewer &viewer, QString (AddressViewer::*cell)(int) const)
{
    constexpr int sample = 200;
    const int step = std::max(1, viewer.count() / sample);
    qsizetype characters = 0;
    int cells = 0;
    for (int row = 0; row < viewer.count(); row += step) {
        const QString text = (viewer.*cell)(row);
        characters += text.size();
        cells += text.isEmpty() ? 0 : 1;
    }
    return double(characters) / std::max(1, cells);
}

/// "    Phone: 555-0142" of each row; nothing where a row has no number. Empty without telephones.
std::vector<QString> telephones(const AddressViewer &viewer, const ViewerPages::ListOptions &options)
{
    std::vector<QString> texts;
    if (!options.hasTelephones || viewer.information() == Information::HomePhone)
        return texts;
    texts.resize(std::size_t(viewer.count()));
    viewer.forEachShown([&](int row, const AddressEntry &entry) {
        if (const QString number = telephoneOf(entry, viewer.information()); !number.isEmpty())
            texts[std::size_t(row)] = ViewerMessages::telephone(number);
        return true;
    });
    return texts;
}

/// The characters that the longest text takes, as far as that is no oddity, and the room around a cell.
double telephoneLength(const std::vector<QString> &telephones)
{
    constexpr qsizetype mostLength = 30, padding = 3;
    qsizetype longest = 0;
    for (const QString &text : telephones) {
        if (!text.isEmpty())
            longest = std::max(longest, std::min(mostLength, text.size()) + padding);
    }
    return double(longest);
}

/// The telephones of a list: in a column of their own, under one another, or below the names.
struct Telephones {
    std::vector<QString> beside;
    std::vector<QString> below;
};

/// Names and information share what the telephones leave as their texts need it.
PageItem::Columns listColumns(const AddressViewer &viewer, const ViewerPages::ListOptions &options,
                              const Telephones &telephones, TextRole role, const PageContext &context)
{
    constexpr double leastInformation = 8;
    constexpr double least = 0.4, most = 0.8, mostTelephone = 0.55;
    PageItem::Columns columns;
    columns.lines = options.hasGridLines ? TableLines::Grid : TableLines::None;
    columns.across = options.isTwoColumns ? 2 : 1;
    const double characters =
        (context.setup.sheet().width() - 1) / columns.across * PageMetrics::charactersPerInch(role);
    const auto share = [=](const std::vector<QString> &texts) {
        return std::min(telephoneLength(texts) / characters, mostTelephone);
    };
    const double telephone = share(telephones.beside);
    double names = 1 - telephone;
    if (hasColumn(viewer)) {
        const double name = usualLength(viewer, &AddressViewer::name);
        const double information =
            std::max(leastInformation, usualLength(viewer, &AddressViewer::information));
        names *= std::clamp(name / (name + information), std::max(least, share(telephones.below)), most);
    }
    columns.weights.push_back(names);
    columns.headings = {ViewerMessages::nameHeading()};
    if (telephone > 0) {
        columns.weights.push_back(telephone);
        columns.headings << QString();
    }
    if (hasColumn(viewer)) {
        columns.weights.push_back(1 - names - telephone);
        columns.headings << ViewerPages::heading(viewer.information(), context.style);
    }
    return columns;
}

int fitting(double room, double least)
{
    return std::max(1, int(std::floor((room - least) / picturePitch)));
}

/// Where the pictures of a sheet stand.
struct PictureGrid {
    explicit PictureGrid(QSizeF sheet)
        : columns(fitting(sheet.width(), firstPicture.x()))
        , rows(fitting(sheet.height(), firstPicture.y()))
    {}

    int count() const { return columns * rows; }
    QPointF corner(int position) const
    {
        return firstPicture + picturePitch * QPointF(position % columns, position / columns);
    }

    int columns;
    int rows;
};

QSizeF printedSize(QSize pixels)
{
    if (pixels.isEmpty())
        return pictureRoom;
    QSizeF size = QSizeF(pixels) / dotsPerInch * pictureScale;
    const double longer = std::max(size.width(), size.height());
    if (longer < leastSide)
        size *= leastSide / longer;
    const bool isTooLarge = size.width() > pictureRoom.width() || size.height() > pictureRoom.height();
    return isTooLarge ? size.scaled(pictureRoom, Qt::KeepAspectRatio) : size;
}

} // namespace

QString ViewerPages::choice(Information information)
{
    switch (information) {
    case Information::Address:
        return u"Address"_s;
    case Information::State:
        return u"State"_s;
    case Information::HomePhone:
        return u"Home Phone"_s;
    case Information::MobilePhone:
        return u"Mobile Phone"_s;
    case Information::FaxNumber:
        return u"Fax Number"_s;
    case Information::EmailAddress:
        return u"Email Address"_s;
    case Information::BirthDate:
        return u"Date of Birth"_s;
    case Information::AnniversaryDate:
        return u"Anniversary Date"_s;
    case Information::Pictures:
        break;
    }
    return u"Pictures - Print Only"_s;
}

QString ViewerPages::heading(Information information, DateStyle style)
{
    if (information == Information::Pictures)
        return {};
    if (information != Information::Address)
        return choice(information);
    const QString town =
        style == DateStyle::Usa ? u"City, State, Zip Code"_s : u"Suburb, Town/City, Postal Code"_s;
    return u"Address, Address Line 2, "_s + town;
}

Page ViewerPages::list(const AddressViewer &viewer, const ListOptions &options, const PageContext &context)
{
    const bool isPictures = viewer.information() == Information::Pictures;
    Page page(ViewerMessages::listTitle(isPictures ? QString() : choice(viewer.information())),
              options.hasAsOf ? ViewerMessages::asOf(Dates::longText(context.today, context.style))
                              : QString());
    page.numberSheets(SheetNumbers::Title);
    Telephones numbers{telephones(viewer, options), {}};
    const TextRole role = options.isTwoColumns ? TextRole::Small : TextRole::Body;
    // Two lists side by side are too narrow for three columns: the telephones stand below the names there.
    if (options.isTwoColumns && hasColumn(viewer))
        numbers.beside.swap(numbers.below);
    page.table(listColumns(viewer, options, numbers, role, context));
    const bool hasNumbers = telephoneLength(numbers.beside) > 0;
    for (int row = 0; row < viewer.count(); ++row) {
        const auto at = std::size_t(row);
        QStringList cells{viewer.name(row)};
        if (!numbers.below.empty() && !numbers.below[at].isEmpty())
            cells[0] += u'\n' + numbers.below[at];
        if (hasNumbers)
            cells << numbers.beside[at];
        if (hasColumn(viewer))
            cells << viewer.information(row);
        page.row(cells, role);
    }
    if (viewer.count() == 0)
        page.row({ViewerMessages::nothingToShow(!viewer.searchText().isEmpty())});
    return page.close(context.today, context.style);
}

Page ViewerPages::pictureList(const std::vector<ListedPicture> &pictures, const PageContext &context)
{
    const QSizeF sheet = context.setup.sheet();
    const PictureGrid grid(sheet);
    const int count = int(pictures.size());
    const int sheets = std::max(1, (count + grid.count() - 1) / grid.count());
    const double width = sheet.width() - 2 * firstPicture.x();
    const QRectF head(firstPicture.x(), headTop, width, headHeight);
    Page page;
    page.numberSheets(SheetNumbers::None); // the last row of pictures stands where the number would
    for (int sheet = 0; sheet < sheets; ++sheet) {
        page.breakPage();
        page.placeText(head, ViewerMessages::pictureListTitle(Dates::longText(context.today, context.style)),
                       TextRole::Heading);
        if (sheets > 1)
            page.placeText(head, FrameLines::pageOf(sheet + 1, sheets), TextRole::Body, Qt::AlignRight);
        const int end = std::min(count, (sheet + 1) * grid.count());
        for (int i = sheet * grid.count(); i < end; ++i) {
            const ListedPicture &picture = pictures[std::size_t(i)];
            const QPointF corner = grid.corner(i % grid.count());
            page.placePicture({corner, printedSize(picture.pixels)}, picture.path);
            page.placeText({corner + QPointF(0, nameTop), nameRoom}, picture.name, TextRole::Small);
        }
    }
    return page.close(context.today, context.style);
}

std::vector<NamedPicture> ViewerPages::picturesOf(const AddressViewer &viewer)
{
    std::vector<NamedPicture> pictures;
    for (int row = 0; row < viewer.count(); ++row) {
        const QString stored = viewer.information(row).trimmed();
        if (stored != noPicture && stored.size() >= shortestPath)
            pictures.push_back({viewer.name(row), stored});
    }
    return pictures;
}

QString ViewerPages::clipboardText(const AddressViewer &viewer, DateStyle style)
{
    return plainText(viewer, style, "\n"_L1);
}

QByteArray ViewerPages::exportText(const AddressViewer &viewer, DateStyle style)
{
    return AnsiText::encode(plainText(viewer, style, "\r\n"_L1));
}

QString ViewerPages::exportName(const QString &title)
{
    QString name = title;
    for (QChar &character : name) {
        if (character < u' ' || u"/\\:*?\"<>|"_s.contains(character))
            character = u'-';
    }
    return name + u".xls"_s;
}
