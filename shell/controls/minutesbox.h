// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSpinBox>

/// A number of minutes up to an hour: "1 minute", "5 minutes".
class MinutesBox final : public QSpinBox
{
    Q_OBJECT
public:
    static constexpr int mostMinutes = 60;

    explicit MinutesBox(QWidget *parent);
};
