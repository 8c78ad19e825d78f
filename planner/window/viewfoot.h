// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The foot of a view of several days: a hint, and the way back to the day.
class ViewFoot final : public QWidget
{
    Q_OBJECT
public:
    /// `name` begins the object names of its buttons: "month" makes "month_dayView" and "month_exit".
    ViewFoot(const QString &name, const QString &hint, QWidget *parent);

signals:
    void dayRequested();
};
