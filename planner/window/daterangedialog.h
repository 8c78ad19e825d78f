#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QDialog>

class FieldBox;
class QLabel;

/// Asks for the first and the last date of a list to be printed.
class DateRangeDialog final : public QDialog
{
    Q_OBJECT
public:
    /// `today` tells the century of a year of two digits.
    DateRangeDialog(QDate from, QDate to, DateStyle style, QDate today, QWidget *parent);

    QDate from() const { return m_range.first; }
    QDate to() const { return m_range.second; }

    void accept() override;

private:
    DateStyle m_style;
    QDate m_today;
    FieldBox *m_fromBox;
    FieldBox *m_toBox;
    QLabel *m_hint;
    std::pair<QDate, QDate> m_range;
};
