// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/recurrencepreview.h"
#include "shell/core/programstate.h"

#include <QWidget>

#include <memory>

class QGridLayout;
class QLabel;
class SlicedWork;

/// What the recurrence panel would do as its boxes stand: how many dates and which, where a day is full, and
/// what removing would take out. It is counted in slices, so that ten years keep nobody from typing.
class RecurrenceOutlook final : public QWidget
{
    Q_OBJECT
public:
    RecurrenceOutlook(const DataFolder &folder, const DateStyle &style, QWidget *parent = nullptr);

    /// Counts anew. Without a kind only removing is told, which then looks at each day.
    void show(const Appointment &appointment, const Recurrence &recurrence, bool hasKind);
    /// Shows why nothing can be counted.
    void showReason(const QString &reason);
    void stop();
    /// Whether the first dates stand below each other, as beside other things, or in lines; then the sum
    /// stands elsewhere.
    void setTall(bool isTall);
    /// "53 dates, Sat Nov 21, 2026 to Sat Nov 20, 2027", or why there are none.
    QString sum() const;

signals:
    /// The sum is a new one.
    void told();

private:
    void tell();
    void tellDates();
    QString dateText(QDate date) const;

    const DataFolder &m_folder;
    const DateStyle &m_style;
    SlicedWork *m_work;
    std::unique_ptr<RecurrencePreview> m_preview;
    bool m_hasKind = false;
    bool m_isTall = true;
    QLabel *m_sum;
    QLabel *m_full;
    QLabel *m_dates;
    QLabel *m_removal;
};
