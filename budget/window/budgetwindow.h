// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/functionwindow.h"

class BudgetPrint;
class BudgetYear;
class SheetCommands;
class SheetGrid;
class SheetModel;
class SpentDesk;
class SpentYear;
class TotalsDesk;
class WorkViews;
class WorksheetView;
struct Place;

/// The home budget: the worksheet of one year, what it comes to month by month, and the year's totals.
class Budget1 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit Budget1(Program &program, QWidget *parent = nullptr);

    bool isModified() const override;
    QString whyNothingToBackUp() const override;

    /// Shows the row of `place` in its year, where unsaved work lets it: what is due in its month, or the
    /// amount with its date where its record is the year.
    void showPlace(const Place &place);

protected:
    [[nodiscard]] bool save() override;
    void drop() override;
    Message leaveQuestion() const override;
    Message replaceQuestion() const override;
    Message backupQuestion() const override;
    void filesChanged() override;

private:
    void makeFoot();
    void makeCommands();
    void addOptionCommands(QMenu *menu);
    void addEditCommands(QMenu *menu);
    void addUtilityCommands(QMenu *menu);
    void connectSheet();
    void connectYear();

    SheetGrid &grid() const;
    void notice(const Message &message, const QModelIndex &cell);
    QString whyNoSheet() const;
    void saveByCommand();
    void chooseYear(int year);
    void copyYear();
    void viewTotals();
    void warnOfLimit();

    SheetModel *m_model;
    SpentYear *m_spent;
    BudgetYear *m_year;
    WorkViews *m_views; ///< the sheet, and what stands over it
    WorksheetView *m_sheet;
    SpentDesk *m_spentDesk = nullptr;
    SheetCommands *m_edits = nullptr;
    BudgetPrint *m_print = nullptr;
    TotalsDesk *m_totalsDesk = nullptr;
    QAction *m_deleteRow = nullptr;
    QAction *m_save = nullptr;
    QAction *m_copyYear = nullptr;
    QAction *m_totals = nullptr;
    bool m_isWarning = false;
};
