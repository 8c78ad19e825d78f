// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalpages.h"
#include "shell/preview/printpanel.h"

class DaySpan;
class QCheckBox;
class QComboBox;
class QLayout;
class QSpinBox;
struct Program;

/// "Print": what of the journal comes onto paper, and how.
class JournalPrintPanel final : public PrintPanel
{
    Q_OBJECT
public:
    enum What { Day, Range, Tag, Month, Yearbook };

    JournalPrintPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// Offers what the journal has; the day that is shown is proposed.
    void start(QDate shown, const QStringList &tags);

    What chosen() const;
    QDate from() const;
    QDate to() const;
    QString tag() const;
    int year() const;
    JournalPages::Options options() const;
    /// The sheet, upright.
    QSizeF paper() const;

protected:
    QString refuse() override;

private:
    void fillChoices();
    void fillBoxes();
    QLayout *makeHow();
    void follow();

    const Program &m_program;
    DaySpan *m_days;
    QComboBox *m_tags;
    QSpinBox *m_year;
    QComboBox *m_paper;
    QComboBox *m_pictures;
    QCheckBox *m_newSheets;
    QCheckBox *m_facts;
};
