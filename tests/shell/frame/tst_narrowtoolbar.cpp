// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/lowwindow.h"
#include "shell/frame/narrowtoolbar.h"

#include <QAction>
#include <QTest>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

class TestNarrowToolbar : public QObject
{
    Q_OBJECT

private slots:
    void leavesOutAndShortensWhileTheWindowIsNarrow()
    {
        QWidget window;
        QAction copy, paste;
        copy.setIconText(u"Copy Day"_s);
        auto *narrow = new NarrowToolbar(&window);
        narrow->shorten(&copy, u"Copy"_s);
        narrow->leaveOut(&paste);
        window.show();
        for (const int width :
             {NarrowToolbar::wideFrom, NarrowToolbar::wideFrom - 1, NarrowToolbar::wideFrom}) {
            window.resize(width, 600);
            const bool isWide = width == NarrowToolbar::wideFrom;
            QCOMPARE(paste.isVisible(), isWide);
            QCOMPARE(copy.iconText(), isWide ? u"Copy Day"_s : u"Copy"_s);
        }
        window.resize(NarrowToolbar::wideFrom - 1, LowWindow::below - 1);
        QVERIFY(paste.isVisible()); // "More" has it
    }
};

QTEST_MAIN(TestNarrowToolbar)
#include "tst_narrowtoolbar.moc"
