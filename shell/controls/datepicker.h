#pragma once

#include <QFrame>
#include <QVector>

class Clock;
class FieldBox;
class MonthView;

/// The calendar that opens beside a date box when the box gets the focus. It goes with Esc, with a click
/// elsewhere and with the next box; typing goes on in the box while it is open. A locked box shows its date
/// in it and keeps it.
class DatePicker final : public QFrame
{
    Q_OBJECT
public:
    /// `window` is the widget that it floats over.
    DatePicker(const Clock &clock, QWidget *window);

    void addBox(FieldBox *box);
    /// The box that it stands beside; null while it is hidden.
    FieldBox *box() const { return isVisible() ? m_box : nullptr; }
    void dismiss();
    /// Moves it beside its box again.
    void reposition();

    /// Shows `date`, or today when it is none.
    void setDate(QDate date);

signals:
    /// It opens beside this box: tell it the box's date.
    void opening(FieldBox *box);
    void dayChosen(FieldBox *box, QDate day);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open(FieldBox *box);
    void choose(QDate day);
    bool boxEvent(FieldBox *box, QEvent *event);
    bool keyPressed(FieldBox *box, int key);
    bool holdsFocus() const;

    const Clock &m_clock;
    QVector<FieldBox *> m_boxes;
    FieldBox *m_box = nullptr;
    MonthView *m_month;
};
