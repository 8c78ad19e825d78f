// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"
#include "budget/model/sheetrange.h"
#include "budget/model/shownyear.h"
#include "shell/core/message.h"
#include "shell/core/undostep.h"

#include <QAbstractTableModel>

#include <memory>

/// The worksheet of a year while it is edited, beside what its file has. Every edit goes through the entry
/// check, is one step of undo, and leaves the figures computed.
class SheetModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    using MonthSums = std::array<double, BudgetSheet::monthCount>;
    /// What was spent in each row and month.
    using Sums = std::array<MonthSums, BudgetSheet::rowCount>;

    /// What stands below a month: what is planned or was spent, the income, and what is left of it.
    struct MonthFigures {
        QString expenses;
        QString income;
        QString balance;
    };

    /// True for an amount spent over its plan.
    static constexpr int overPlanRole = Qt::UserRole;

    explicit SheetModel(QObject *parent = nullptr);

    /// Shows `sheet`, which is what the file has.
    void load(const BudgetSheet &sheet);
    /// The file has now what is shown.
    void setSaved() { m_saved = m_sheet; }
    bool isModified() const { return *m_sheet != *m_saved; }
    void setReadOnly(bool readOnly) { m_isReadOnly = readOnly; }
    bool isReadOnly() const { return m_isReadOnly; }

    const BudgetSheet &sheet() const { return *m_sheet; }
    const BudgetSheet &savedSheet() const { return *m_saved; }
    /// Of what is planned, whatever the layer.
    const BudgetFigures &figures() const { return m_figures; }

    /// Makes the sheet `wanted`, in one step that undo calls `title`. False, and no step, where it is so
    /// already.
    /// Undo and redo show `range` again; by default, what they change.
    bool change(const QString &title, const BudgetSheet &wanted, const SheetRange &range = {});
    /// Whether a question stands between `preview` and `change`.
    bool isPreviewed() const { return m_beforePreview != nullptr; }
    /// Shows `sheet` before a question that belongs to the edit; the `change` that follows is one step.
    void preview(const BudgetSheet &sheet);

    /// In the layer of what was spent, amounts that are typed are told by `spentTyped` and change no sheet.
    void setLayer(SheetLayer layer);
    SheetLayer layer() const { return m_layer; }
    /// What was spent, and what of it belongs to no row.
    void setSpent(const Sums &sums, const MonthSums &noRow);
    const Sums &spent() const { return m_spent; }
    const MonthSums &spentOnNoRow() const { return m_spentOnNoRow; }
    /// In the layer that is shown; `month` from 0.
    MonthFigures shownFigures(std::size_t month) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// The figures were computed anew: after loading, and after each edit.
    void recomputed();
    void layerChanged();
    /// Something was edited, and may be taken back.
    void edited(const UndoStep &step);
    /// An edit was taken back or made again in `range`.
    void shownAgain(const SheetRange &range);
    /// The entry check has something to say about what was typed into `cell`.
    void noticed(const Message &message, const QModelIndex &cell);
    /// Only the number at the start of what was typed was taken, as `amount`.
    void partlyRead(const QString &typed, const QString &amount);
    void spentTyped(int row, int month, const QString &typed);

private:
    using Sheet = std::shared_ptr<const BudgetSheet>;

    void show(const Sheet &sheet);
    ChangeResult exchange(const Sheet &shown, const Sheet &wanted, const SheetRange &range);
    QString cellShown(int row, int column) const;
    double spentIn(int row, int column) const;
    bool isOverPlan(int row, int column) const;
    bool takeCell(int row, int column, const QString &typed);

    Sheet m_sheet;
    Sheet m_saved;
    Sheet m_beforePreview;
    BudgetFigures m_figures;
    SheetLayer m_layer = SheetLayer::Planned;
    Sums m_spent{};
    MonthSums m_spentOnNoRow{};
    bool m_isReadOnly = false;
};
