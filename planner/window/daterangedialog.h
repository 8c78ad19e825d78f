// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QDialog>

class DateBox;
class QLabel;
struct DateReading;

/// Asks for the first and the last date of a list to be printed.
class DateRangeDialog final : public QDialog
{
    Q_OBJECT
public:
    DateRangeDialog(QDate from, QDate to, const DateReading &reading, QWidget *parent);

    QDate from() const { return m_range.first; }
    QDate to() const { return m_range.second; }

    void accept() override;

private:
    DateBox *m_fromBox;
    DateBox *m_toBox;
    QLabel *m_hint;
    const DateStyle &m_style;
    std::pair<QDate, QDate> m_range;
};
