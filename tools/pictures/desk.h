// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

#include <span>

class QApplication;
class QProcessEnvironment;

/// A screen that pictures are taken on. What it takes is known before the toolkit starts, so each desk is a
/// run of its own.
struct Desk {
    const char *name; ///< behind a picture's name: "main-menu-dark"; the first desk has none
    QSize screen;     ///< in pixels
    int scale;        ///< of everything: 2 on a fine screen
    int dotsPerInch;  ///< by which the toolkit scales everything as well
    bool isDark;      ///< the desktop's own windows are dark
    bool takesPages;  ///< printed pages look the same on every desk

    QString suffix() const;

    static std::span<const Desk> all();
    static const Desk *named(const QString &name);

    /// What a run on this desk finds around it, so that pictures hardly differ from one computer to the next:
    /// an offscreen screen of this size, one font, English, and no settings of the user's. The files that
    /// this needs are made in `folder`.
    QProcessEnvironment surroundings(const QString &folder) const;

    /// Gives the application the look of the program on this desk.
    void furnish(QApplication &application) const;
};
