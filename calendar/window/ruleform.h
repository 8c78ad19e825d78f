// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/daterule.h"

#include <QWidget>

#include <initializer_list>
#include <utility>

class DateBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QSpinBox;
struct Program;

/// A rule, put together from choices, and its text, which can be typed as well.
class RuleForm final : public QWidget
{
    Q_OBJECT
public:
    /// Its parts are named after it: "rules" has rulesWay, rulesStart, rulesRule. `window` is what the
    /// calendar of its date floats over.
    RuleForm(const Program &program, const QString &name, QWidget *window, QWidget *parent = nullptr);

    /// Shows a rule as it stands in a file; one that cannot be read is shown as it is.
    void setRule(const QString &text);
    /// As it goes into a file: what was typed where that cannot be read.
    QString rule() const;

    /// A box with something typed that the rule has not taken; the focus goes there. None: all is taken.
    bool goToOpenYear();

    /// The first and last in the order of the Tab key.
    QWidget *firstInTab() const;
    QWidget *lastInTab() const;

signals:
    /// By the person.
    void changed();

private:
    /// What the first choice offers.
    enum Way { Weeks, Days, OnDate, WeekdayOfMonth, BeforeDate, FromDate, FromEaster, FromOrthodoxEaster };

    void fillChoices();
    void addTo(QLayout &row, std::initializer_list<std::pair<QString, QWidget *>> boxes);
    void listen();
    void showRule();
    void offerMonths();
    void showParts();
    void showWords();
    void readChoices();
    void readYears();
    void readText();
    Way way() const;

    const Program &m_program;
    DateRule m_rule;
    bool m_isReadable = true;
    bool m_isShowing = false;
    QComboBox *m_way;
    QSpinBox *m_interval;
    QComboBox *m_ordinal;
    QComboBox *m_weekday;
    QComboBox *m_month;
    QSpinBox *m_day;
    QSpinBox *m_distance;
    DateBox *m_start;
    QLineEdit *m_firstYear;
    QLineEdit *m_lastYear;
    QComboBox *m_moving;
    QLineEdit *m_text;
    QLabel *m_words;
};
