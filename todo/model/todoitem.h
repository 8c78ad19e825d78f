// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// What a list is for. In a shopping list, what was bought is offered again; a template is copied, never
/// worked off.
enum class ListKind { Plain, Shopping, Template };

/// A named list. Its id is 0 until it is in a sheet.
struct ToDoList {
    int id = 0;
    ListKind kind = ListKind::Plain;
    QString name;

    /// In characters.
    static constexpr int longestName = 60;

    bool operator==(const ToDoList &) const = default;
};

/// A step belongs to the item above it; a heading stands over the items below it.
enum class ItemLevel { Item, Step, Heading };

/// A thing to do, a step of one, or a heading. Its id is 0 until it is in a sheet.
struct ToDoItem {
    /// The longest texts, in characters.
    static constexpr int longestText = 200;
    static constexpr int longestNote = 2000;

    int id = 0;
    int list = 0;
    ItemLevel level = ItemLevel::Item;
    QDate due{};
    std::optional<int> offset{}; ///< in a template, in place of `due`: days after the date that is asked for
    QDate actual{};              ///< when it was done; invalid while it is open
    QString who{};               ///< "Anne", or "Anne > Nils > Karin": who takes turns
    QString repeat{};            ///< as `Repeat` writes it; empty without one
    QDate created{};
    QString text{};
    QString note{};

    bool operator==(const ToDoItem &) const = default;
};
