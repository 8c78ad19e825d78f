// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

/// What a button of a message box answers.
enum class Answer { Ok, Cancel, Yes, No };

/// One question or notice: a value that rules return, windows show and tests compare. Lines of the text are
/// separated by '\n'; the first is shown as the heading.
struct Message {
    enum Icon { Information, Question, Warning, Critical };

    QString title;
    QString text;
    Icon icon = Information;
    QVector<Answer> answers = {Answer::Ok};
    Answer preselected = Answer::Ok;

    bool operator==(const Message &) const = default;
};
