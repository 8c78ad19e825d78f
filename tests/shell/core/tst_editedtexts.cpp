// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/editedtexts.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestEditedTexts : public QObject
{
    Q_OBJECT
private slots:
    void keepsWhatNobodyTouched()
    {
        EditedTexts<3> texts;
        texts.load({u"cut by its box"_s, u"Anne"_s, u"two\nlines"_s},
                   {u"cut by"_s, u"Anne"_s, u"two lines"_s});
        QVERIFY(!texts.isModified({u"cut by"_s, u"Anne"_s, u"two lines"_s}));

        const EditedTexts<3>::Texts boxes{u"cut by"_s, u""_s, u"two lines"_s};
        const EditedTexts<3>::Texts typed{u"cut by its box"_s, u""_s, u"two\nlines"_s};
        QVERIFY(texts.isModified(boxes));
        QCOMPARE(texts.typed(boxes), typed);
    }
};

QTEST_GUILESS_MAIN(TestEditedTexts)
#include "tst_editedtexts.moc"
