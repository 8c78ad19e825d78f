// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

#include <vector>

class CarCellDelegate;
class DatePicker;
struct Program;

/// A grid of a car's texts that are typed right into its cells: its schedule, a history, the fuel tracker.
/// The model says with `CarCell` roles what a cell takes.
class CarGrid final : public QTableView
{
    Q_OBJECT
public:
    static constexpr int inset = 8; ///< between a text and the edges of its cell

    /// How the columns share the width: each has room for its longest usual text, and those that grow take
    /// what is left, all of them where none does.
    struct Width {
        QString longest;
        bool grows = false;
    };

    /// `picker` is null in a grid without dates.
    CarGrid(const Program &program, const QString &name, DatePicker *picker, QWidget *parent = nullptr);

    void setWidths(std::vector<Width> widths);
    /// Makes it the single row in which something new is typed, a cell after the other as in boxes.
    void setEntry();
    bool isEntry() const { return m_isEntry; }
    /// Whether it has the focus, itself or in the box of a cell.
    bool isInUse() const;
    static int rowHeight();

    /// What is being typed goes into its cell.
    void finishEdit();
    /// Begins to type into `index`.
    void type(const QModelIndex &index);
    /// The columns share `room`, where that is not the grid's own.
    void fitColumns(int room);

    /// Whether `key` ends the typing in a cell and leads to another.
    bool isWayOut(const QKeyEvent &key) const;
    /// Goes where `key` leads to. False for other keys.
    bool walk(const QKeyEvent &key);

signals:
    /// Enter was pressed in the last cell of a row in which something new is typed.
    void entered();
    /// The cells have more room now, or less.
    void roomChanged(int width);
    /// Another cell or row is the current one.
    void currentMoved();
    /// Something was typed or pasted where nothing can be changed.
    void refused();
    /// A sentence for the status bar.
    void said(const QString &line);

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    bool focusNextPrevChild(bool next) override;

private:
    QModelIndex target(const QKeyEvent &key) const;

    CarCellDelegate *m_delegate;
    std::vector<Width> m_widths;
    bool m_isEntry = false;
    bool m_isTypedOver = false; ///< the open box replaces what the cell held
};
