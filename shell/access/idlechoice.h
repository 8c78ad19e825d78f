// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QComboBox;
struct Program;

/// The part of password control that chooses after how long without key or mouse everything guarded is
/// covered. What is chosen is in force at once.
class IdleChoice final : public QWidget
{
    Q_OBJECT
public:
    IdleChoice(Program &program, QWidget *parent);

    /// With a reason, nothing can be chosen.
    void setReason(const QString &reason);

signals:
    void chosen();
    void notSaved();

private:
    void choose(int index);
    void showSetting();

    Program &m_program;
    QComboBox *m_minutes;
};
