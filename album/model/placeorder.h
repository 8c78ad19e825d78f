// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

/// The numbers by which things that a person arranges stand in their order: far apart, so that one finds room
/// between two others without their being written.
namespace PlaceOrder {

/// The numbers of `order`, ascending, when `count` things come before place `at` of it, those that come
/// included. As few of the others as possible are another than before: none while there is room.
std::vector<quint32> inserted(const std::vector<quint32> &order, std::size_t at, std::size_t count);

} // namespace PlaceOrder
