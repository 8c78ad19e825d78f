// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/labelsheet.h"

#include "addressbook/model/addresspages.h"
#include "addressbook/model/addressviewer.h"
#include "addressbook/model/indexline.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Words keep clear of a label's edge: sheets lie in the printer a little askew.
constexpr QSizeF labelInset(0.16, 0.06);
constexpr QRectF returnPlace(0.4, 0.35, 2.6, 0.95);

double inches(double millimeters)
{
    return millimeters / PageMetrics::millimetersPerInch;
}

QSizeF metric(double width, double height)
{
    return {inches(width), inches(height)};
}

/// Of the usual layout of its kind: `left` and `top` in millimetres.
LabelSheet a4Labels(int rows, double labelHeight, double top)
{
    LabelSheet sheet;
    sheet.name = u"A4, 3 x %1, 63.5 x %2 mm"_s.arg(rows).arg(labelHeight);
    sheet.paper = PageMetrics::a4;
    sheet.columns = 3;
    sheet.rows = rows;
    sheet.first = {inches(7.21), inches(top)};
    sheet.label = metric(63.5, labelHeight);
    sheet.pitch = {inches(66.04), inches(labelHeight)};
    return sheet;
}

LabelSheet letterLabels()
{
    LabelSheet sheet;
    sheet.name = u"US Letter, 3 x 10, 2 5/8 x 1 in"_s;
    sheet.paper = PageMetrics::letter;
    sheet.columns = 3;
    sheet.rows = 10;
    sheet.first = {0.1875, 0.5};
    sheet.label = {2.625, 1};
    sheet.pitch = {2.75, 1};
    return sheet;
}

/// The address stands in the right lower part, clear of the stamp and of the edge that machines read.
LabelSheet envelope(const QString &name, QSizeF paper)
{
    constexpr double right = 0.4;
    constexpr double foot = 0.65;
    LabelSheet sheet;
    sheet.name = name;
    sheet.paper = paper;
    sheet.first = {paper.width() * 0.45, paper.height() * 0.45};
    sheet.label = {paper.width() - sheet.first.x() - right, paper.height() - sheet.first.y() - foot};
    sheet.isEnvelope = true;
    return sheet;
}

QStringList addressLines(const AddressEntry &entry)
{
    QStringList lines;
    for (const QString &line : {entry[Address1], entry[Address2], AddressPages::townLine(entry)}) {
        if (const QString plain = line.simplified(); !plain.isEmpty())
            lines << plain;
    }
    return lines;
}

/// One label while its persons are gathered.
struct Household {
    std::vector<LabelPerson> persons;
    QString address;
};

std::vector<Household> households(const AddressViewer &viewer, LabelSharing sharing,
                                  const std::function<bool(int line)> &wanted, int &leftOut)
{
    std::vector<Household> all;
    QHash<QString, std::size_t> places;
    QSet<int> records;
    viewer.forEachShown([&](int row, const AddressEntry &entry) {
        if (wanted && !wanted(viewer.line(row)))
            return true;
        const QString address = addressLines(entry).join(u'\n');
        const LabelPerson person{entry[LastName].simplified(), entry[FirstName].simplified()};
        // A line may lead to the entry of another: nobody knows where its own person lives.
        const bool isOthers =
            viewer.line(row) != viewer.record(row) && !IndexLine::belongs(viewer.name(row), entry);
        if (address.isEmpty() || isOthers || records.contains(viewer.record(row))) {
            ++leftOut;
            return true;
        }
        records.insert(viewer.record(row));
        if (sharing == LabelSharing::OneForAnAddress) {
            const QString key = address.toCaseFolded();
            if (const auto known = places.constFind(key); known != places.constEnd()) {
                all[*known].persons.push_back(person);
                return true;
            }
            places.insert(key, all.size());
        }
        all.push_back({{person}, address});
        return true;
    });
    return all;
}

/// "Anne, Karl & Ida"
QString listed(const QStringList &names)
{
    if (names.size() < 2)
        return names.join(QString());
    return names.mid(0, names.size() - 1).join(", "_L1) + u" & "_s + names.last();
}

void placeLabels(Page &page, const LabelSheet &sheet, const std::vector<SetLabel> &labels,
                 const LabelPages::Options &options, int index)
{
    if (sheet.isEnvelope && !options.returnAddress.isEmpty())
        page.placeText(returnPlace.translated(options.offset), options.returnAddress, TextRole::Small);
    for (int position = 0; position < sheet.count(); ++position) {
        if (options.hasRims)
            page.placeRule(sheet.place(position));
        const int number = index * sheet.count() + position - options.used;
        if (number < 0 || std::size_t(number) >= labels.size())
            continue;
        const auto alignment =
            sheet.isEnvelope ? Qt::AlignLeft | Qt::AlignTop : Qt::AlignLeft | Qt::AlignVCenter;
        const SetLabel &label = labels[std::size_t(number)];
        page.placeText(sheet.room(position).translated(options.offset), label.text, label.role, alignment);
    }
}

} // namespace

QRectF LabelSheet::place(int position) const
{
    const QPointF corner(first.x() + (position % columns) * pitch.x(),
                         first.y() + (position / columns) * pitch.y());
    return {corner, label};
}

QRectF LabelSheet::room(int position) const
{
    return place(position).adjusted(labelInset.width(), labelInset.height(), -labelInset.width(),
                                    -labelInset.height());
}

PageSetup LabelSheet::setup() const
{
    const bool isLandscape = paper.width() > paper.height();
    return {isLandscape ? paper.transposed() : paper,
            isLandscape ? PageSetup::Landscape : PageSetup::Portrait};
}

const std::vector<LabelSheet> &LabelSheet::all()
{
    static const std::vector<LabelSheet> sheets{
        a4Labels(7, 38.1, 15.15),
        a4Labels(8, 33.9, 12.9),
        letterLabels(),
        envelope(u"Envelope DL, 220 x 110 mm"_s, metric(220, 110)),
        envelope(u"Envelope C6, 162 x 114 mm"_s, metric(162, 114)),
        envelope(u"Envelope C5, 229 x 162 mm"_s, metric(229, 162)),
        envelope(u"Envelope #10, 9 1/2 x 4 1/8 in"_s, {9.5, 4.125}),
    };
    return sheets;
}

LabelTexts LabelTexts::of(const AddressViewer &viewer, LabelSharing sharing,
                          const std::function<bool(int line)> &wanted)
{
    LabelTexts labels;
    for (const Household &household : households(viewer, sharing, wanted, labels.leftOut))
        labels.texts.push_back(LabelPages::names(household.persons) + u'\n' + household.address);
    return labels;
}

QString LabelPages::names(const std::vector<LabelPerson> &persons)
{
    QStringList families;
    for (std::size_t i = 0; i < persons.size();) {
        QStringList firstNames;
        const QString &last = persons[i].lastName;
        const auto isOfFamily = [&last](const LabelPerson &person) {
            return person.lastName.compare(last, Qt::CaseInsensitive) == 0;
        };
        for (; i < persons.size() && isOfFamily(persons[i]); ++i) {
            if (!persons[i].firstName.isEmpty())
                firstNames << persons[i].firstName;
        }
        const QString family = listed(firstNames) + u' ' + last;
        families << family.trimmed();
    }
    return listed(families);
}

SetLabel LabelPages::fitted(const QString &text, const LabelType &type)
{
    const QStringList paragraphs = text.split(u'\n');
    for (const TextRole role : {TextRole::Body, TextRole::Small}) {
        QStringList lines;
        for (const QString &paragraph : paragraphs)
            lines += type.wrapped(paragraph, role);
        if (lines.size() <= type.mostLines(role))
            return {lines.join(u'\n'), role};
    }
    SetLabel label{{}, TextRole::Small, true};
    QStringList lines;
    // Each has one line; those below take what else there is before those above.
    qsizetype free = std::max<qsizetype>(0, type.mostLines(label.role) - paragraphs.size());
    for (qsizetype i = paragraphs.size(); i-- > 0;) {
        QStringList own = type.wrapped(paragraphs[i], label.role);
        if (own.size() > free + 1)
            own = own.mid(0, free) << type.elided(own.mid(free).join(u' '), label.role);
        free -= own.size() - 1;
        lines = own + lines;
    }
    label.text = lines.join(u'\n');
    return label;
}

int LabelPages::sheetCount(const LabelSheet &sheet, int labels, int used)
{
    return std::max(1, (labels + used + sheet.count() - 1) / sheet.count());
}

Page LabelPages::sheet(const LabelSheet &sheet, const std::vector<SetLabel> &labels, const Options &options,
                       int index)
{
    Page page;
    page.numberSheets(SheetNumbers::None);
    placeLabels(page, sheet, labels, options, index);
    return page;
}

Page LabelPages::sheets(const LabelSheet &sheet, const std::vector<SetLabel> &labels, const Options &options)
{
    Page page;
    page.numberSheets(SheetNumbers::None);
    const int count = sheetCount(sheet, int(labels.size()), options.used);
    for (int index = 0; index < count; ++index) {
        page.breakPage();
        placeLabels(page, sheet, labels, options, index);
    }
    return page;
}
