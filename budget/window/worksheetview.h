// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QWidget>

class BudgetYear;
class QVBoxLayout;
class ButtonRow;
class LowWindow;
class SheetGrid;
class SheetModel;
class SpentYear;
class TitleLine;
class TotalsRows;
class WorksheetPane;
class YearBox;
struct Program;

/// The sheet of a year as a person first sees it: what is left of the month, the year, the grid with its
/// totals, and the buttons below.
class WorksheetView final : public QWidget
{
    Q_OBJECT
public:
    /// What it shows.
    struct Desk {
        SheetModel &model;
        const SpentYear &spent;
        const BudgetYear &year;
    };

    WorksheetView(const Program &program, Desk desk, QWidget *parent = nullptr);

    SheetGrid &grid() const;
    TotalsRows &totals() const;
    YearBox &years() const { return *m_years; }
    ButtonRow &foot() const { return *m_foot; }
    /// Puts the switch of the layers beside the year.
    void setSwitch(QWidget *layers);

private:
    void fit(bool isLow);
    void refresh();
    QString title(QLocale::FormatType format) const;
    QString words() const;
    double leftOf(std::size_t month) const;
    bool isEmpty() const;
    bool isOfThisYear() const;
    void goToBeginning();

    const Program &m_program;
    Desk m_desk;
    TitleLine *m_title;
    YearBox *m_years;
    WorksheetPane *m_pane;
    ButtonRow *m_foot;
    QVBoxLayout *m_layout;
    LowWindow *m_low;
};
