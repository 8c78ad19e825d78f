// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QButtonGroup;
class QLayout;
class QWidget;

/// Where the Tab key goes.
namespace TabOrder {

/// Through what `layout` holds in its order, behind `before`; returns the last of it that takes the focus.
QWidget *follow(const QLayout &layout, QWidget *before = nullptr);

/// To the chosen button of `group`, or to its first: arrow keys go from one to the other. Left alone, Tab
/// comes to whichever stands first.
void findTheChosen(QButtonGroup &group);

} // namespace TabOrder
