// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/minutesbox.h"

#include "shell/controls/controls.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int usualWidth = 130;
} // namespace

MinutesBox::MinutesBox(QWidget *parent)
    : QSpinBox(parent)
{
    setRange(1, mostMinutes);
    const auto count = [this](int minutes) { setSuffix(minutes == 1 ? u" minute"_s : u" minutes"_s); };
    connect(this, &QSpinBox::valueChanged, this, count);
    count(value());
    setFixedWidth(boxWidth(u"60 minutes"_s, usualWidth));
}
