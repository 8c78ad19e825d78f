// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"

#include <QList>

/// The items of this kind, in the page's order.
template <typename Item>
QList<Item> itemsOf(const Page &page)
{
    QList<Item> items;
    for (const Page::Item &item : page.items()) {
        if (const auto *wanted = std::get_if<Item>(&item))
            items << *wanted;
    }
    return items;
}
