// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "shell/pages/pagefont.h"

#include <QColor>
#include <QString>

#include <optional>

class QDialog;
class QPrinter;
class QWidget;

/// Every modal question of the program goes through here, so that a test can answer it and see what was
/// asked. The optional answers are empty when the user cancelled.
class Dialogs
{
public:
    virtual ~Dialogs() = default;

    virtual Answer ask(QWidget *parent, const Message &message) = 0;
    /// A one-line question; OK with an empty box and Cancel are told apart.
    virtual std::optional<QString> input(QWidget *parent, const QString &title, const QString &prompt,
                                         const QString &preset) = 0;
    virtual std::optional<QColor> chooseColor(QWidget *parent, const QColor &preset) = 0;
    virtual std::optional<PageFont> chooseFont(QWidget *parent, const PageFont &preset) = 0;
    virtual std::optional<QString> chooseFileToSave(QWidget *parent, const QString &title,
                                                    const QString &preset, const QString &filter) = 0;
    virtual std::optional<QString> chooseFileToOpen(QWidget *parent, const QString &title,
                                                    const QString &folder, const QString &filter) = 0;
    virtual std::optional<QString> chooseFolder(QWidget *parent, const QString &title,
                                                const QString &preset) = 0;
    /// The platform's print dialog; false when cancelled.
    virtual bool choosePrinter(QWidget *parent, QPrinter &printer) = 0;
    /// Whether the system has a printer at all; without one, printing offers a PDF.
    virtual bool hasPrinter() const = 0;
    /// Runs a modal dialog of our own (the password prompt, the About box) and returns its result.
    virtual int run(QDialog &dialog) = 0;
};
