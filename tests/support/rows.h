// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

#include <initializer_list>
#include <tuple>

/// A case of a table: what it is called, and its values.
template <typename... Values>
using Case = std::tuple<const char *, Values...>;

/// Lays a table of cases down, for the ..._data() of a test: rows<QString, int>({{"no text", {}, 0}, ...}).
template <typename... Values>
void rows(std::initializer_list<Case<Values...>> cases)
{
    QTest::addColumn<std::tuple<Values...>>("row");
    for (const Case<Values...> &row : cases)
        std::apply(
            [](const char *name, const Values &...values) { QTest::newRow(name) << std::tuple(values...); },
            row);
}

/// The values of the case that is running: const auto [text, count] = row<QString, int>();
template <typename... Values>
std::tuple<Values...> row()
{
    QFETCH(std::tuple<Values...>, row);
    return row;
}
