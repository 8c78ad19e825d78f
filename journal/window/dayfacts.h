// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/daynotes.h"

#include <QWidget>

class QAbstractButton;

/// What the other functions have for the day, in a quiet strip above its text: a click puts one into it. What
/// finds no room stands in a menu. It is hidden on a day that has nothing.
class DayFacts final : public QWidget
{
    Q_OBJECT
public:
    DayFacts(const Program &program, QWidget *parent);

    /// Behind which Tab comes to them.
    void setBefore(QWidget *before) { m_before = before; }
    /// Asks the functions once the window has been painted; an invalid date has nothing.
    void setDate(QDate date);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// "11:30 AM Dentist", "Done: Paint the fence"
    static QString wordsOf(const DayNote &note);

signals:
    void chosen(const QString &words);

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void load();
    void clear();
    int place(int width, bool isMoved) const;
    void openMore();

    const Program &m_program;
    QList<HouseholdNote> m_notes;
    QList<QAbstractButton *> m_buttons; ///< one a note, then "more"
    QWidget *m_before = nullptr;
    QDate m_date;
    bool m_isLoading = false;
};
