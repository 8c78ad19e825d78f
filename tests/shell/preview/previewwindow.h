// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/activitybar.h"
#include "shell/preview/previewmessages.h"
#include "shell/preview/previewpane.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

/// A window with the pane in it, as a function window holds it.
class PreviewWindow final : public QWidget
{
public:
    explicit PreviewWindow(TestProgram &test)
        : activity(new ActivityBar(test.clock, test.state.dateStyle, this))
        , pane(new PreviewPane(test.program, *activity, this))
    {
        auto *rows = new QVBoxLayout(this);
        rows->addWidget(pane, 1);
        rows->addWidget(activity);
        resize(1000, 800);
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
    void showSheets(int count)
    {
        pane->show(
            [count](const PageSetup &) {
                Page page(QStringLiteral("Sheets"));
                for (int i = 0; i < count; ++i)
                    page.line(QStringLiteral("sheet ") + QString::number(i)).breakPage();
                return page;
            },
            QStringLiteral("Sheets"));
    }

    void click(const char *name) const
    {
        QTest::mouseClick(control<QPushButton>(*this, name), Qt::LeftButton);
    }
    QString caption(const char *name) const { return control<QPushButton>(*this, name)->text().remove(u'&'); }
    QString label(const char *name) const { return control<QLabel>(*this, name)->text(); }
    SheetView &view() const { return *control<SheetView>(*this, "VSPrinter1"); }

    ActivityBar *activity;
    PreviewPane *pane;
    QList<PageSetup> builtFor;
};
