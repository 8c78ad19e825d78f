// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QSpinBox;
class QToolButton;

/// The heading of a month: steps to the months before and after, and between them its name and its year,
/// which can be picked. Its parent is the calendar, which has the focus again when a year was typed.
class MonthHeading final : public QWidget
{
    Q_OBJECT
public:
    explicit MonthHeading(QWidget *parent);

    void setMonth(int year, int month);

signals:
    void stepped(int months);
    void picked(int year, int month);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *makeStep(const QString &name, const QString &word, int months);
    QToolButton *makeWord(const QString &name);
    void makeMonths();
    void openYear();
    void takeYear();
    void paintSteps();

    int m_year = 0;
    int m_month = 0;
    QToolButton *m_previous;
    QToolButton *m_name;
    QToolButton *m_yearWord;
    QSpinBox *m_yearBox; ///< in place of the year while it is typed
    QToolButton *m_next;
};
