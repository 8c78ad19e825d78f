// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/dialogs.h"

/// The questions as the user sees them: the program's own message and input boxes, and the platform's
/// choosers.
class QtDialogs final : public Dialogs
{
public:
    Answer ask(QWidget *parent, const Message &message) override;
    std::optional<QString> input(QWidget *parent, const QString &title, const QString &prompt,
                                 const QString &preset) override;
    std::optional<QColor> chooseColor(QWidget *parent, const QColor &preset) override;
    std::optional<PageFont> chooseFont(QWidget *parent, const PageFont &preset) override;
    std::optional<QString> chooseFileToSave(QWidget *parent, const QString &title, const QString &preset,
                                            const QString &filter) override;
    std::optional<QString> chooseFileToOpen(QWidget *parent, const QString &title, const QString &folder,
                                            const QString &filter) override;
    std::optional<QString> chooseFolder(QWidget *parent, const QString &title,
                                        const QString &preset) override;
    bool choosePrinter(QWidget *parent, QPrinter &printer) override;
    bool hasPrinter() const override;
    int run(QDialog &dialog) override;
};
