// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>

#include <array>

/// The keys that mean the same in every window: a command that does this there takes its key from here. Undo
/// and redo belong to the box that is typed into while it has something to take back itself.
namespace CommonKeys {

inline constexpr QKeyCombination search = Qt::CTRL | Qt::Key_F;
/// The search over everything.
inline constexpr QKeyCombination everything = Qt::CTRL | Qt::Key_K;
/// Covers what the password guards, whatever has the focus.
inline constexpr QKeyCombination lock = Qt::CTRL | Qt::Key_L;
inline constexpr QKeyCombination newEntry = Qt::CTRL | Qt::Key_N;
inline constexpr QKeyCombination save = Qt::CTRL | Qt::Key_S;
inline constexpr QKeyCombination print = Qt::CTRL | Qt::Key_P;
inline constexpr QKeyCombination undo = Qt::CTRL | Qt::Key_Z;
inline constexpr QKeyCombination redo = Qt::CTRL | Qt::Key_Y;
inline constexpr QKeyCombination change = Qt::Key_F2;
/// Works in a list or grid alone: see `Commands::setKeyIn()`.
inline constexpr QKeyCombination remove = Qt::Key_Delete;
inline constexpr QKeyCombination help = Qt::Key_F1;
/// The views of a window in the order of its View menu.
inline constexpr std::array<QKeyCombination, 5> views{Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::Key_2,
                                                      Qt::CTRL | Qt::Key_3, Qt::CTRL | Qt::Key_4,
                                                      Qt::CTRL | Qt::Key_5};

} // namespace CommonKeys
