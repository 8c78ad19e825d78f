// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/chosensheet.h"

class CellEditor;

/// The sheet that is worked on, as it will be printed. Its days are walked through with the arrow keys, typed
/// into where they stand, and their lines drawn from one to another.
class MonthCells final : public ChosenSheet
{
    Q_OBJECT
public:
    explicit MonthCells(QWidget *parent = nullptr);

    /// What keeps one from changing anything; empty where nothing does.
    void setWhyLocked(const QString &reason) { m_whyLocked = reason; }

    /// Types into the day that is shown, at this line of it, or a new one for -1. `lines` are what it has.
    void openEditor(const QStringList &lines, int line);
    CellEditor &editor() const { return *m_editor; }

signals:
    /// Another day is the one; it may be on another sheet.
    void dayWanted(QDate day);
    void monthStepped(int by);
    /// The day is to be typed into: at a line of it, or at a new one (-1), which begins with `typed`.
    void writingWanted(int line, const QString &typed);
    void spanWanted();
    void spanOpened(int span);
    /// Alt and an arrow: the chosen line changes places with its neighbour.
    void orderWanted(int by);

protected:
    void placeOver() override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool isActive() const override;

private:
    enum class Pressed { Nothing, Day, Listed };

    bool walk(const QKeyEvent &event);
    void go(QDate day, bool isChoosing);
    bool walkLines(int key);
    void walkPersons(int by);
    void startDrag();

    CellEditor *m_editor;
    QString m_whyLocked;
    QPoint m_pressed;
    Pressed m_pressedOn = Pressed::Nothing;
    int m_pressedLine = -1; ///< of the day
    int m_wheel = 0;        ///< turned since the last month
};
