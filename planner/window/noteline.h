// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/window/householdnotes.h"

#include <QAbstractButton>
#include <QPainter>

/// The birthdays and anniversaries of a day in one quiet line: cut where it is too narrow, whole in the tool
/// tip. A click leads to the person. Without any it is hidden.
class NoteLine final : public QAbstractButton
{
    Q_OBJECT
public:
    NoteLine(const HouseholdNotes &notes, QWidget *parent);

    /// Reads the notes of `date` once the window has been painted.
    void setDate(QDate date);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Draws their sign and words into a line of this height, in the painter's pen, or in the colour of what
    /// is due.
    static void paint(QPainter &painter, const QRect &place, const QList<HouseholdNote> &notes);

signals:
    /// There are notes now, or none any more.
    void filled(bool isFilled);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void load();

    const HouseholdNotes &m_source;
    QList<HouseholdNote> m_notes;
    QDate m_date;
    bool m_isLoading = false;
};
