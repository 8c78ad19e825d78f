// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QVector>

class Clock;
class DateBox;
class MonthView;
class Settings;

/// The calendar that opens beside a date box when the box gets the focus. It closes with Esc, with a click
/// elsewhere and with the next box; typing goes on in the box while it is open, and the calendar follows. A
/// locked box shows its date in it and keeps it.
class DatePicker final : public QFrame
{
    Q_OBJECT
public:
    /// `window` is the widget that it floats over; the calendar in it bears `name`.
    DatePicker(const Clock &clock, const Settings &settings, QWidget *window,
               const QString &name = QStringLiteral("MonthView1"));

    /// A date box does so itself. The picker forgets it when it goes.
    void addBox(DateBox *box);
    /// Opens beside `box`, one of its own.
    void open(DateBox *box);
    /// The box that it stands beside; null while it is hidden.
    DateBox *box() const { return isVisible() ? m_box : nullptr; }
    void dismiss();
    /// Moves it beside its box again.
    void reposition();

signals:
    /// A day was chosen, and stands in `box` now.
    void picked(DateBox *box);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void forget(QObject *box);
    void showDate(QDate date);
    void follow();
    void dismissUnlessUsed();
    void choose(QDate day);
    bool boxEvent(DateBox *box, QEvent *event);
    bool keyPressed(DateBox *box, int key);
    bool holdsFocus() const;

    const Clock &m_clock;
    const Settings &m_settings;
    QVector<DateBox *> m_boxes;
    DateBox *m_box = nullptr;
    MonthView *m_month;
};
