// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripteddialogs.h"

#include <QDialog>
#include <QTest>

namespace {

/// The next scripted value, or `fallback` with a failed test when the question was not expected.
template <typename T>
T next(std::deque<T> &script, const QString &question, T fallback)
{
    if (script.empty()) {
        QTest::qFail(qPrintable(QStringLiteral("not expected: ") + question), __FILE__, __LINE__);
    } else {
        fallback = std::move(script.front());
        script.pop_front();
    }
    return fallback;
}

} // namespace

bool ScriptedDialogs::isDone() const
{
    return m_answers.empty() && m_inputs.empty() && m_colors.empty() && m_fonts.empty() && m_files.empty() &&
           m_printers.empty() && m_runs.empty();
}

Answer ScriptedDialogs::ask(QWidget *, const Message &message)
{
    m_shown.append(message);
    // A notice with nothing but OK needs no script.
    if (m_answers.empty() && message.answers == QVector<Answer>{Answer::Ok})
        return Answer::Ok;
    return next(m_answers, message.title + QStringLiteral(": ") + message.text, Answer::Cancel);
}

std::optional<QString> ScriptedDialogs::input(QWidget *, const QString &title, const QString &prompt,
                                              const QString &preset)
{
    m_prompts << title << prompt << preset;
    return next(m_inputs, prompt, std::optional<QString>());
}

std::optional<QColor> ScriptedDialogs::chooseColor(QWidget *, const QColor &)
{
    return next(m_colors, QStringLiteral("a color"), std::optional<QColor>());
}

std::optional<PageFont> ScriptedDialogs::chooseFont(QWidget *, const PageFont &)
{
    return next(m_fonts, QStringLiteral("a font"), std::optional<PageFont>());
}

std::optional<QString> ScriptedDialogs::chooseFileToSave(QWidget *, const QString &title,
                                                         const QString &preset, const QString &)
{
    m_prompts << title << preset;
    return next(m_files, title, std::optional<QString>());
}

std::optional<QString> ScriptedDialogs::chooseFileToOpen(QWidget *, const QString &title, const QString &,
                                                         const QString &)
{
    return next(m_files, title, std::optional<QString>());
}

std::optional<QString> ScriptedDialogs::chooseFolder(QWidget *, const QString &title, const QString &)
{
    return next(m_files, title, std::optional<QString>());
}

bool ScriptedDialogs::choosePrinter(QWidget *, QPrinter &printer)
{
    const auto choice = next(m_printers, QStringLiteral("a printer"), std::function<bool(QPrinter &)>());
    return choice && choice(printer);
}

int ScriptedDialogs::run(QDialog &dialog)
{
    const auto drive = next(m_runs, dialog.objectName(), std::function<int(QDialog &)>());
    dialog.show();
    return drive ? drive(dialog) : int(QDialog::Rejected);
}

char *toString(const Message &message)
{
    return qstrdup(qPrintable(message.title + QStringLiteral(" | ") + message.text));
}
