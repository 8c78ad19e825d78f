// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/lightmarks.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestLightMarks : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhatALineIs_data()
    {
        rows<QString, int, int, QString>({
            {"a sentence", u"Rain all day."_s, MarkedLine::Plain, 0, u"Rain all day."_s},
            {"nothing", {}, MarkedLine::Plain, 0, {}},
            {"a heading", u"# The ferry"_s, MarkedLine::Heading, 0, u"The ferry"_s},
            {"no blank", u"#ferry"_s, MarkedLine::Plain, 0, u"#ferry"_s},
            {"a list", u"- milk"_s, MarkedLine::List, 0, u"milk"_s},
            {"not begun yet", u"- "_s, MarkedLine::List, 0, {}},
            {"two steps in", u"    - milk"_s, MarkedLine::List, 2, u"milk"_s},
            {"a step by a tab", u"\t- milk"_s, MarkedLine::List, 1, u"milk"_s},
            {"far to the right", QString(u' ').repeated(40) + u"- milk"_s, MarkedLine::List, 6, u"milk"_s},
            {"a dash alone", u"-"_s, MarkedLine::Plain, 0, u"-"_s},
            {"a picture", u"[picture 12]"_s, MarkedLine::Picture, 0, {}},
            {"a picture in a sentence", u"see [picture 1]"_s, MarkedLine::Plain, 0, u"see [picture 1]"_s},
            {"no number", u"[picture x]"_s, MarkedLine::Plain, 0, u"[picture x]"_s},
            {"picture 0", u"[picture 0]"_s, MarkedLine::Plain, 0, u"[picture 0]"_s},
        });
    }
    void tellsWhatALineIs()
    {
        const auto [line, kind, indent, plain] = row<QString, int, int, QString>();
        const MarkedLine marked = LightMarks::of(line);
        QCOMPARE(marked.kind, kind);
        QCOMPARE(marked.indent, indent);
        QCOMPARE(LightMarks::plain(line), plain);
        if (kind == MarkedLine::Picture)
            QCOMPARE(LightMarks::picture(marked.picture), line);
    }

    /// The runs as <b> and <i>, with what is left of the signs.
    void findsBoldAndItalic_data()
    {
        rows<QString, QString>({
            {"bold", u"a **b c** d"_s, u"a <b>b c</b> d"_s},
            {"italic", u"*a* b"_s, u"<i>a</i> b"_s},
            {"both", u"***a***"_s, u"<b><i>a</i></b>"_s},
            {"italic in bold", u"**a *b* c**"_s, u"<b>a </b><b><i>b</i></b><b> c</b>"_s},
            {"both end together", u"**a *b***"_s, u"<b>a </b><b><i>b</i></b>"_s},
            {"both begin together", u"***a* b**"_s, u"<b><i>a</i></b><b> b</b>"_s},
            {"beside a full stop", u"(**a**)."_s, u"(<b>a</b>)."_s},
            {"a product", u"2*3*4"_s, u"2*3*4"_s},
            {"with blanks", u"a * b * c"_s, u"a * b * c"_s},
            {"never closed", u"**a *b* c"_s, u"**a <i>b</i> c"_s},
            {"opened in between", u"**a *b**"_s, u"<b>a *b</b>"_s},
            {"four", u"****a****"_s, u"****a****"_s},
            {"in a list", u"- *a*"_s, u"<i>a</i>"_s},
            {"a heading", u"# a **b**"_s, u"a <b>b</b>"_s},
        });
    }
    void findsBoldAndItalic()
    {
        const auto [line, expected] = row<QString, QString>();
        QString shown;
        for (const MarkedRun &run : LightMarks::of(line).runs) {
            QString text = line.sliced(run.at, run.length);
            text = run.isItalic ? u"<i>"_s + text + u"</i>"_s : text;
            shown += run.isBold ? u"<b>"_s + text + u"</b>"_s : text;
        }
        QCOMPARE(shown, expected);
    }
};

QTEST_GUILESS_MAIN(TestLightMarks)
#include "tst_lightmarks.moc"
