// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/household.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"
#include "weight/model/personfiles.h"
#include "weight/model/weightpages.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using WeightPages::Options;

namespace {

WeightSheet nils()
{
    const DataFolder folder(householdPath());
    WeightSheet sheet = PersonFiles(folder).read(u"Nils Holm 2026"_s).sheet;
    return sheet;
}

Page printed(const Options &options, PageSetup::Orientation orientation = PageSetup::Portrait)
{
    PageContext context;
    context.setup.orientation = orientation;
    context.today = QDate(2026, 8, 11);
    return WeightPages::printout(nils(), options, {u"/chart"_s, u"/then"_s, u"/now"_s}, context);
}

Options none()
{
    return {false, false, false, false, false, false, false};
}

} // namespace

/// The printout with its seven options.
class TestWeightPages final : public QObject
{
    Q_OBJECT
private slots:
    void hasWhatIsChosen_data()
    {
        const QString data = u"Weight Tracker Data - Page "_s, plan = u"Exercise Plan and Information"_s,
                      photos = u"Beginning and Current Photos"_s;
        using Choice = bool Options::*;
        rows<QList<Choice>, QStringList, QStringList>(
            {{"nothing but the summary", {}, {}, {}},
             {"the graph", {&Options::graph}, {}, {u"/chart"_s}},
             {"the table", {&Options::data}, {data}, {}},
             {"the plan", {&Options::plan}, {plan}, {}},
             {"then", {&Options::beginningPicture}, {photos}, {u"/then"_s}},
             {"now", {&Options::currentPicture}, {photos}, {u"/now"_s}},
             {"all",
              {&Options::graph, &Options::data, &Options::plan, &Options::beginningPicture,
               &Options::currentPicture},
              {data, plan, photos},
              {u"/chart"_s, u"/then"_s, u"/now"_s}}});
    }

    void hasWhatIsChosen()
    {
        const auto [chosen, sections, pictures] = row<QList<bool Options::*>, QStringList, QStringList>();
        Options options = none();
        for (const auto choice : chosen)
            options.*choice = true;
        const Page page = printed(options);
        QCOMPARE(page.title(), u"Weight Tracker Printout"_s);
        QCOMPARE(page.headRight(), u"Nils Holm 2026"_s);
        QStringList titles;
        for (const PageItem::Section &section : itemsOf<PageItem::Section>(page))
            titles << section.title;
        QCOMPARE(titles, sections);
        QStringList paths;
        for (const PageItem::Picture &picture : itemsOf<PageItem::Picture>(page))
            paths << picture.path;
        for (const PageItem::PlacedPicture &picture : itemsOf<PageItem::PlacedPicture>(page))
            paths << picture.path;
        QCOMPARE(paths, pictures);
    }

    void tellsTheWeighInsAndThePlan()
    {
        const QString text = printed({}).toText();
        for (const QString &line :
             {u"Beginning:\t214.5, January 05, 2026\tTotal change:\t-22.3"_s, u"01/05/2026\t214.5\tN/A\t0"_s,
              u"08/10/2026\t192.2\t-0.9\t-22.3"_s, u"Types of Exercise:\tWalking, swimming"_s,
              u"Says the doctor: \"Swim\" instead."_s})
            QVERIFY2(text.contains(line + u'\n'), qPrintable(line + u'\n' + text));
    }

    void tellsTheWeightOfAPhoto_data()
    {
        rows<QString, QString>({{"of its day", u"August 10, 2026"_s, u"August 10, 2026, 192.2"_s},
                                {"of the nearest day", u"August 15, 2026"_s, u"August 15, 2026, 192.2"_s},
                                {"of none", u"August 20, 2026"_s, u"August 20, 2026"_s}});
    }

    void tellsTheWeightOfAPhoto()
    {
        const auto [taken, told] = row<QString, QString>();
        WeightSheet sheet = nils();
        sheet.field(WeightSheet::CurrentPhotoDate) = taken;
        const auto texts = itemsOf<PageItem::PlacedText>(WeightPages::printout(sheet, {}, {}, {}));
        QVERIFY(std::ranges::any_of(texts, [&](const auto &item) { return item.text == told; }));
    }

    void hasItsLines_data()
    {
        rows<bool, bool, TableLines>({{"none", false, false, TableLines::None},
                                      {"a frame", true, false, TableLines::None},
                                      {"between the rows", false, true, TableLines::Rows}});
    }

    void hasItsLines()
    {
        const auto [hasBorder, hasDividers, lines] = row<bool, bool, TableLines>();
        Options options;
        options.borderLines = hasBorder;
        options.dividerLines = hasDividers;
        const Page page = printed(options);
        QCOMPARE(page.hasFrames(), hasBorder);
        for (const PageItem::Columns &columns : itemsOf<PageItem::Columns>(page))
            QCOMPARE(columns.lines, lines);
    }

    void thenAndNowStandSideBySide()
    {
        for (const auto orientation : {PageSetup::Portrait, PageSetup::Landscape}) {
            const auto pictures = itemsOf<PageItem::PlacedPicture>(printed({}, orientation));
            QCOMPARE(pictures.size(), 2);
            QCOMPARE(pictures[0].place.top(), pictures[1].place.top());
            QCOMPARE(pictures[0].place.size(), pictures[1].place.size());
            QVERIFY(pictures[0].place.right() < pictures[1].place.left());
            QVERIFY(pictures[1].place.right() < PageSetup{.orientation = orientation}.sheet().width() - 0.4);
        }
    }
};

QTEST_APPLESS_MAIN(TestWeightPages)
#include "tst_weightpages.moc"
