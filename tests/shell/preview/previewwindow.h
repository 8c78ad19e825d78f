// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/activitybar.h"
#include "shell/preview/previewmessages.h"
#include "shell/preview/previewpane.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

/// A program with the pane in a window, as a function window holds it.
class PreviewWindow final
{
public:
    PreviewWindow()
        : activity(new ActivityBar(test.clock, test.state.dateStyle, &window))
        , pane(new PreviewPane(test.program, *activity, &window))
    {
        auto *rows = new QVBoxLayout(&window);
        rows->addWidget(pane, 1);
        rows->addWidget(activity);
        window.resize(1000, 800);
        showActive(window);
    }

    /// Shows a list of so many rows; the setups that it was built for are kept.
    void showList(int rows, const QString &name = QStringLiteral("Names"))
    {
        pane->show(
            [this, rows](const PageSetup &setup) {
                builtFor.append(setup);
                Page page(QStringLiteral("Names"));
                page.columns({1, 1}, {QStringLiteral("Name"), QStringLiteral("Number")});
                for (int i = 0; i < rows; ++i)
                    page.row({QStringLiteral("Zoë"), QString::number(i)});
                return page.close(QDate(2026, 11, 21), DateStyle::Usa);
            },
            name);
    }

    /// Shows a page of exactly so many sheets.
    void showSheets(int count) const
    {
        Page page(QStringLiteral("Sheets"));
        for (int i = 0; i < count; ++i)
            page.line(QString::number(i)).breakPage();
        pane->show([page](const PageSetup &) { return page; }, page.title());
    }

    void click(const char *name) const
    {
        QTest::mouseClick(control<QPushButton>(window, name), Qt::LeftButton);
    }
    QString caption(const char *name) const
    {
        return control<QPushButton>(window, name)->text().remove(u'&');
    }
    QString label(const char *name) const { return control<QLabel>(window, name)->text(); }
    SheetView &view() const { return *control<SheetView>(window, "VSPrinter1"); }

    TestProgram test;
    ScriptedDialogs &dialogs = test.dialogs;
    QWidget window;
    ActivityBar *activity;
    PreviewPane *pane;
    QList<PageSetup> builtFor;
};
