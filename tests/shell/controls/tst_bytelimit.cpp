// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/bytelimit.h"
#include "tests/support/rows.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Boxes for fields of ten bytes.
class TestByteLimit : public QObject
{
    Q_OBJECT

private slots:
    void holdsNoMoreThanTheFieldHasRoomFor_data()
    {
        // before, where the cursor stands, what is inserted, after
        rows<QString, int, QString, QString>(
            {{"what fits is taken", u"Anne"_s, 4, u" Karin"_s, u"Anne Karin"_s},
             {"the end of what does not is left out", u"Anne"_s, 4, u" and Karin"_s, u"Anne and K"_s},
             {"in the middle, what stood behind stays", u"AnneKarin"_s, 4, u" and "_s, u"Anne Karin"_s},
             {"letters of two bytes", u"Gärtn"_s, 5, u"erei Ö"_s, u"Gärtnerei"_s},
             {"no letter is cut in two", u"12345678"_s, 8, u"\U0001F469\u200D\U0001F467"_s, u"12345678"_s}});
    }

    void holdsNoMoreThanTheFieldHasRoomFor()
    {
        const auto [before, cursor, inserted, after] = row<QString, int, QString, QString>();
        QLineEdit line(before);
        auto *ofLine = new ByteLimit(&line, 10);
        QSignalSpy told(ofLine, &ByteLimit::reached);
        line.setCursorPosition(cursor);
        line.insert(inserted);
        emit line.textEdited(line.text());
        QCOMPARE(line.text(), after);
        QCOMPARE(told.size(), after == before.left(cursor) + inserted + before.mid(cursor) ? 0 : 1);

        QPlainTextEdit text(before);
        new ByteLimit(&text, 10);
        QTextCursor place = text.textCursor();
        place.setPosition(cursor);
        text.setTextCursor(place);
        text.insertPlainText(inserted);
        QCOMPARE(text.toPlainText(), after);
    }
};

QTEST_MAIN(TestByteLimit)
#include "tst_bytelimit.moc"
