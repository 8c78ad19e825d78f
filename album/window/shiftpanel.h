// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photodate.h"
#include "shell/controls/taskpanel.h"

class QComboBox;
class QLabel;
class QSpinBox;
struct Program;

/// Moves the dates of many pictures at once, since the camera's clock was wrong: so many days, hours and
/// minutes later or earlier.
class ShiftPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit ShiftPanel(const Program &program, QWidget *parent = nullptr);

    /// `first` is the date of the first of so many pictures.
    void start(const PhotoDate &first, int count);

signals:
    void accepted(qint64 seconds);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QSpinBox *makeNumber(const QString &name, int most);
    qint64 seconds() const;
    void follow();

    const Program &m_program;
    PhotoDate m_first;
    QSpinBox *m_days;
    QSpinBox *m_hours;
    QSpinBox *m_minutes;
    QComboBox *m_way;
    QLabel *m_outcome;
    QPushButton *m_shift;
};
