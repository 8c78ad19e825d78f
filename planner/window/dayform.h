// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerday.h"

#include <QComboBox>
#include <QWidget>

#include <array>

class FieldBox;
class TimeSuggestion;

/// The list of times (`Combo1`): an arrow in the time box of the row that has the focus.
class TimeList final : public QComboBox
{
    Q_OBJECT
public:
    explicit TimeList(QWidget *parent);

    /// "6:00 AM" to "10:00 PM", a half hour apart.
    static QStringList times();

    QSize sizeHint() const override { return {24, 24}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

/// The fourteen rows of a day: `Text1` is a row's time, `Text2` its text.
class DayForm final : public QWidget
{
    Q_OBJECT
public:
    /// The rows are never wider: a text of fifty letters has room, and the eye finds from its time to it.
    static constexpr int greatestWidth = 788;
    /// Between the columns: the numbers of the rows, the times and the texts.
    static constexpr int gap = 8;
    static int numberWidth();
    static int timeBoxWidth();

    explicit DayForm(QWidget *parent = nullptr);

    void setDay(const PlannerDay &day);
    /// The texts can be read and copied, and not typed into.
    void setReadOnly(bool readOnly);
    /// What the boxes hold; never marked as saved.
    PlannerDay day() const;

    /// The row that has the focus, or had it last.
    int currentRow() const { return m_row; }
    /// Puts the focus where typing goes on: into the text of `row`, or its time when it has none.
    void focusRow(int row);
    /// The first row that holds nothing, the last one of a full day.
    int firstEmptyRow() const;

    FieldBox *timeBox(int row) const { return m_times[std::size_t(row)]; }
    FieldBox *textBox(int row) const { return m_texts[std::size_t(row)]; }

signals:
    void edited();
    void rowEntered(int row);
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpBox(FieldBox *box, int limit, const QString &accessibleName);
    void enterRow(int row);
    void placeTimeList();
    void pickTime(int index);
    bool keyPressed(int row, bool inTime, int key, Qt::KeyboardModifiers modifiers);

    std::array<FieldBox *, PlannerDay::rowCount> m_times;
    std::array<FieldBox *, PlannerDay::rowCount> m_texts;
    TimeList *m_timeList;
    TimeSuggestion *m_suggestion;
    int m_row = 0;
    bool m_isEntered = false;
};
