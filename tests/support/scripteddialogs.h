// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/dialogs.h"

#include <QColor>
#include <QList>
#include <QStringList>

#include <deque>
#include <functional>
#include <utility>

/// Answers the program's questions from a script, in order, and remembers what was shown. A question that the
/// script does not expect fails the test and is answered Cancel.
class ScriptedDialogs final : public Dialogs
{
public:
    void willAnswer(Answer answer) { m_answers.push_back(answer); }
    void willInput(std::optional<QString> text) { m_inputs.push_back(std::move(text)); }
    void willChooseColor(std::optional<QColor> color) { m_colors.push_back(color); }
    void willChooseFont(std::optional<PageFont> font) { m_fonts.push_back(font); }
    void willChooseFile(std::optional<QString> path) { m_files.push_back(std::move(path)); }
    void willChoosePrinter(std::function<bool(QPrinter &)> choice)
    {
        m_printers.push_back(std::move(choice));
    }
    /// `drive` acts on the dialog, which is shown but not run modally, and returns its result.
    void willRun(std::function<int(QDialog &)> drive) { m_runs.push_back(std::move(drive)); }
    void setPrinter(bool present) { m_hasPrinter = present; }

    /// The messages shown since the last call.
    QList<Message> takeShown() { return std::exchange(m_shown, {}); }
    /// Titles and prompts of the input boxes shown since the last call.
    QStringList takePrompts() { return std::exchange(m_prompts, {}); }
    /// Whether everything that was scripted has been asked.
    bool isDone() const;

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
    bool hasPrinter() const override { return m_hasPrinter; }
    int run(QDialog &dialog) override;

private:
    std::deque<Answer> m_answers;
    std::deque<std::optional<QString>> m_inputs;
    std::deque<std::optional<QColor>> m_colors;
    std::deque<std::optional<PageFont>> m_fonts;
    std::deque<std::optional<QString>> m_files;
    std::deque<std::function<bool(QPrinter &)>> m_printers;
    std::deque<std::function<int(QDialog &)>> m_runs;
    QList<Message> m_shown;
    QStringList m_prompts;
    bool m_hasPrinter = false;
};

/// Shows messages in a failed comparison.
char *toString(const Message &message);
