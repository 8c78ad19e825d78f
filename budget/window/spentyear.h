// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/shownyear.h"
#include "budget/model/spendingfiles.h"
#include "shell/core/undostep.h"

#include <QObject>

class SheetModel;

/// What was spent in the year that is open, while it is edited beside its worksheet. It is saved with it, and
/// what is renamed there takes along what was spent on it.
class SpentYear final : public QObject
{
    Q_OBJECT
public:
    SpentYear(const DataFolder &folder, SheetModel &model, QObject *parent);

    /// Shows what the file of `year` holds, beside the worksheet that is in the model now.
    void load(int year);
    int year() const { return m_year; }
    QString fileName() const { return SpendingFiles::fileName(m_year); }

    const SheetModel &sheet() const { return m_model; }
    const Spending &spending() const { return m_spending; }
    const SpentSums &sums() const { return m_sums; }
    /// The year with the layer that the grid shows, and its worksheet: the plan, or what was spent in its
    /// place.
    ShownYear shown() const;
    BudgetSheet shownSheet() const;
    /// Why that has no totals; empty where it may have some.
    QString whyNoTotals() const;
    /// Why nothing can be entered; empty where it can.
    QString whyReadOnly() const;

    /// Makes it `wanted`, in one step that undo calls `title`; nothing happens where it is so already.
    void change(const QString &title, const Spending &wanted);
    /// `step`, an edit of the worksheet that was just made, with what follows from it here.
    UndoStep along(const UndoStep &step);

    bool isModified() const { return m_spending != m_saved; }
    void addTo(ChangeSet &change) const { m_files.addTo(change, m_year, m_spending); }
    /// The file has now what is shown.
    void setSaved() { m_saved = m_spending; }

signals:
    /// Something else was spent, or it belongs to other rows.
    void changed();
    /// Something was entered, and may be taken back.
    void edited(const UndoStep &step);

private:
    void show(const Spending &spending);
    ChangeResult exchange(int year, const Spending &shown, const Spending &wanted);
    void refresh();

    const DataFolder &m_folder;
    SpendingFiles m_files;
    SheetModel &m_model;
    int m_year = 0;
    SpendingFiles::State m_state = SpendingFiles::State::Missing;
    Spending m_spending;
    Spending m_saved;
    SpentSums m_sums;
    BudgetSheet m_sheet; ///< which what was spent belongs to
};
