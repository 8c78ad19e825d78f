// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalpages.h"
#include "journal/model/namesfound.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

using JournalPages::Options;
using JournalPages::PictureSize;
using JournalPages::Source;

const QDate pi(2026, 3, 14);

JournalEntry entryOf(QDate date, const QString &text, const QStringList &tags = {})
{
    return {.date = date, .written = date.startOfDay(), .tags = tags, .text = text};
}

PageContext contextOf(QSizeF paper = PageMetrics::letter)
{
    return {.setup = {.paper = paper},
            .style = DateStyle::Usa,
            .today = QDate(2026, 11, 23),
            .family = u"Holm"_s};
}

/// The text of the page without its head and closing lines, blank lines as "|".
QString bodyOf(const Page &page)
{
    QStringList lines = page.toText().split(u'\n').mid(3);
    lines = lines.mid(0, lines.size() - 3);
    lines.replaceInStrings(QRegularExpression(u"^$"_s), u"|"_s);
    return lines.join(u'/');
}

/// What the sheet that holds `line` is numbered; 0 where none does.
int sheetWith(const PagePainter &painter, const QString &line, int from = 3)
{
    for (int sheet = from; sheet <= painter.sheetCount(); ++sheet) {
        if (painter.text(sheet - 1).split(u'\n').contains(line))
            return sheet;
    }
    return 0;
}

} // namespace

/// What is printed of the journal.
class JournalPagesTest final : public QObject
{
    Q_OBJECT
private slots:
    void showsTheDayAsItWasWritten_data()
    {
        const QList<JournalPicture> two{{u"a.jpg"_s, u"The quay"_s}, {u"b.jpg"_s, u"The ferry"_s}};
        rows<QString, QList<JournalPicture>, QString>({
            {"lines", u"One.\nTwo.\n"_s, {}, u"One./Two."_s},
            {"several empty lines", u"\n\nOne.\n\n\nTwo.\n\n"_s, {}, u"One./|/Two."_s},
            {"marks",
             u"# Head\n**b** and *i*\n- item\n  - below\n"_s,
             {},
             u"Head/b and i/\u2022 item/    \u2022 below"_s},
            {"a heading below text", u"One.\n# Head\n"_s, {}, u"One./|/Head"_s},
            {"pictures at their place", u"One.\n[picture 2]\nTwo.\n[picture 1]\n"_s, two,
             u"One./The ferry/Two./The quay"_s},
            {"pictures without a place", u"One.\n[picture 2]\nTwo.\n"_s, two,
             u"One./The ferry/Two./The quay"_s},
            {"a place without a picture", u"One.\n[picture 3]\n"_s, two,
             u"One./[picture 3]/The quay/The ferry"_s},
            {"pictures alone", {}, two, u"The quay/The ferry"_s},
        });
    }

    void showsTheDayAsItWasWritten()
    {
        const auto [text, pictures, expected] = row<QString, QList<JournalPicture>, QString>();
        JournalEntry entry = entryOf(pi, text);
        entry.pictures = pictures;
        const Page page = JournalPages::day({.entries = {entry}}, pi, {}, contextOf());
        QCOMPARE(page.title(), u"Saturday, March 14, 2026"_s);
        QCOMPARE(page.headRight(), u"Holm Journal"_s);
        QCOMPARE(bodyOf(page), expected);
    }

    void hasQuietWordsAroundTheText()
    {
        JournalEntry entry = entryOf(pi, u"One.\n"_s, {u"garden"_s, u"school"_s});
        entry.written = QDateTime(QDate(2026, 3, 15), QTime(8, 12));
        Source source{.entries = {entry}};
        source.facts = [](QDate date) {
            return QStringList{u"Anne turns %1"_s.arg(date.day()), u"Dentist"_s};
        };
        const auto pageOf = [&](bool hasFacts) {
            return bodyOf(JournalPages::day(source, pi, {.hasFacts = hasFacts}, contextOf()));
        };
        const QString below = u"One./|/garden, school  \u00b7  Written on March 15"_s;
        QCOMPARE(pageOf(false), below);
        QCOMPARE(pageOf(true), u"Anne turns 14  \u00b7  Dentist/|/"_s + below);
    }

    void printsTheChosenDays()
    {
        const Source source{.entries = {entryOf(pi.addDays(-1), u"a\n"_s, {u"Garden"_s}),
                                        entryOf(pi, u"b\n"_s),
                                        entryOf(pi.addDays(9), u"c\n"_s, {u"garden"_s})}};
        const PageContext context = contextOf();
        QCOMPARE(bodyOf(JournalPages::range(source, pi, pi.addDays(9), {}, context)),
                 u"Saturday, March 14, 2026/b/|/Monday, March 23, 2026/c/|/garden"_s);
        const Page tag = JournalPages::tag(source, u"garden"_s, {.eachOnNewSheet = true}, context);
        QCOMPARE(tag.title() + u'/' + tag.headRight(), u"Holm Journal: garden/2 entries"_s);
        QCOMPARE(PagePainter(tag, {}, bodyFont()).sheetCount(), 2);
        for (const Page &empty : {JournalPages::range(source, pi.addDays(1), pi.addDays(2), {}, context),
                                  JournalPages::day(source, pi.addDays(1), {}, context),
                                  JournalPages::tag(source, u"ferry"_s, {}, context)})
            QCOMPARE(bodyOf(empty), u"Nothing was written."_s);
    }

    void choosesHowLargePicturesAre()
    {
        JournalEntry entry = entryOf(pi, {});
        entry.pictures = {{u"Pictures/a.jpg"_s}};
        Source source{.entries = {entry}};
        source.picturePath = [](const QString &path) -> QString { return u"/home/"_s + path; };
        double before = 0;
        for (const PictureSize size : {PictureSize::Small, PictureSize::Medium, PictureSize::Large}) {
            const Page page = JournalPages::day(source, pi, {.pictures = size}, contextOf());
            const auto &figure = std::get<PageItem::Figure>(page.items().front());
            QCOMPARE(figure.path, u"/home/Pictures/a.jpg"_s);
            QVERIFY(figure.within.width() * figure.within.height() > before);
            before = figure.within.width() * figure.within.height();
        }
        QVERIFY(JournalPages::day(source, pi, {.pictures = PictureSize::None}, contextOf()).isEmpty());
    }

    void showsTheMonthAsACalendar()
    {
        const Source source{.entries = {entryOf(pi, u"# A day\n[picture 1]\n**bold** words\n"_s)}};
        const QString text = JournalPages::month(source, pi, Qt::Monday, contextOf()).toText();
        QVERIFY(text.startsWith(u"\nMarch 2026\tHolm Journal\n"_s));
        QVERIFY(text.contains(u"\n14\nA day [picture 1] bold words\n"_s) ||
                text.contains(u"\n14\nA day bold words\n"_s));
        QVERIFY(text.contains(u"\n31\n"_s) && !text.contains(u"\n32\n"_s));
    }

    void makesABookOfAYear_data()
    {
        rows<QSizeF, bool>({{"Letter", PageMetrics::letter, false},
                            {"A4", PageMetrics::a4, false},
                            {"A5", PageMetrics::a5, false},
                            {"each on a new sheet", PageMetrics::a5, true}});
    }

    void makesABookOfAYear()
    {
        const auto [paper, eachOnNewSheet] = row<QSizeF, bool>();
        const QString long_ = u"The ferry was late, and nobody minded. "_s.repeated(30) + u'\n';
        Source source{.people = {u"Anne Lind"_s, u"Ben Holm"_s}};
        for (QDate date(2026, 1, 2); date.year() == 2026; date = date.addDays(9))
            source.entries << entryOf(date, long_ + (date.month() == 7 ? u"Anne came.\n"_s : QString()),
                                      date.month() == 12 ? QStringList{u"snow"_s} : QStringList());
        source.entries << entryOf(QDate(2027, 1, 1), u"Another year.\n"_s);
        const PageContext context = contextOf(paper);
        const Page page = JournalPages::yearbook(source, 2026, {.eachOnNewSheet = eachOnNewSheet}, context);
        const PagePainter painter(page, context.setup, bodyFont());
        QVERIFY(painter.text(0).contains(u"Holm\nJournal\n2026"_s));
        const QStringList contents = painter.text(1).split(u'\n');
        const int may = sheetWith(painter, u"Friday, May 8"_s);
        QVERIFY2(contents.contains(u"May\t3 entries\t%1"_s.arg(may)), qPrintable(contents.join(u'/')));
        const int index = painter.sheetCount();
        QVERIFY(contents.contains(u"Tags and People\t\t%1"_s.arg(index)));
        const QString words = painter.text(index - 1);
        QVERIFY2(words.contains(u"\nPeople\nAnne Lind  %1"_s.arg(sheetWith(painter, u"Wednesday, July 1"_s))),
                 qPrintable(words));
        QVERIFY(words.contains(u"\nTags\nsnow  %1"_s.arg(sheetWith(painter, u"Tuesday, December 1"_s))));
        QVERIFY(!words.contains(u"Ben"_s) && !page.toText().contains(u"Another year"_s));
        QCOMPARE(sheetWith(painter, u"Sunday, May 17"_s) == may, !eachOnNewSheet && paper != PageMetrics::a5);
    }

    void callsAnIndexByWhatItHas()
    {
        Source source;
        source.entries << entryOf(QDate(2026, 1, 2), u"Text\n"_s, {u"Zoo"_s, u"apple"_s, u"\u00c9lan"_s});
        const PageContext context = contextOf(PageMetrics::a4);
        const PagePainter painter(JournalPages::yearbook(source, 2026, {}, context), context.setup,
                                  bodyFont());
        const int index = painter.sheetCount();
        QVERIFY(painter.text(1).split(u'\n').contains(u"Tags\t\t%1"_s.arg(index)));
        const QString words = painter.text(index - 1);
        QVERIFY2(words.indexOf(u"apple"_s) >= 0 &&
                     words.indexOf(u"apple"_s) < words.indexOf(u"\u00c9lan"_s) &&
                     words.indexOf(u"\u00c9lan"_s) < words.indexOf(u"Zoo"_s) && words.count(u"Tags"_s) == 1,
                 qPrintable(words));
    }

    void findsPeopleInTheText_data()
    {
        const QStringList lind{u"Anne Lind"_s, u"Ben Lind"_s, u"Anne Holm"_s, u"Jo"_s, u"Zo\u00eb"_s};
        rows<QStringList, QString, QStringList>({
            {"by the whole name", lind, u"With Anne Lind and Ben Lind."_s, {u"Anne Lind"_s, u"Ben Lind"_s}},
            {"by the first name", lind, u"Ben's bicycle, Ben!"_s, {u"Ben Lind"_s}},
            {"which two have", lind, u"Anne came."_s, {u"Anne"_s}},
            {"in small letters", lind, u"ben"_s, {}},
            {"within a word", lind, u"Benno, Annes, XBen"_s, {}},
            {"a short name", lind, u"Jo came."_s, {}},
            {"an accent", lind, u"und Zo\u00eb."_s, {u"Zo\u00eb"_s}},
            {"nobody known", {}, u"Anne"_s, {}},
        });
    }

    void findsPeopleInTheText()
    {
        const auto [people, text, expected] = row<QStringList, QString, QStringList>();
        QCOMPARE(NamesFound(people).in(text), expected);
    }
};

QTEST_MAIN(JournalPagesTest)
#include "tst_journalpages.moc"
