// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// What stands in the place of a view that has nothing to show yet: a sign, a sentence, a quiet line, and the
/// buttons that lead on.
class EmptyPage final : public QWidget
{
    Q_OBJECT
public:
    EmptyPage(QLatin1StringView icon, const QString &sentence, const QString &line,
              QWidget *parent = nullptr);

    void setWords(const QString &sentence, const QString &line);
    /// The first one is the main button and takes the focus; there should be at most one other.
    void addButton(QPushButton *button);

private:
    QLabel *m_sentence;
    QLabel *m_line;
    QHBoxLayout *m_buttons;
};
