// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/messagebox.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int narrowest = 420;
constexpr int widest = 560;
constexpr int signSize = 44;
constexpr int margin = 24;
constexpr int signGap = 18;
constexpr int buttonWidth = 104;

/// How an answer's button is named and labelled.
struct AnswerButton {
    Answer answer;
    QLatin1StringView name;
    QLatin1StringView caption;
};

constexpr std::array answerButtons{AnswerButton{Answer::Ok, "answerOk"_L1, "&OK"_L1},
                                   AnswerButton{Answer::Cancel, "answerCancel"_L1, "&Cancel"_L1},
                                   AnswerButton{Answer::Yes, "answerYes"_L1, "&Yes"_L1},
                                   AnswerButton{Answer::No, "answerNo"_L1, "&No"_L1}};

QLatin1StringView signOf(Message::Icon icon)
{
    switch (icon) {
    case Message::Question:
        return "question"_L1;
    case Message::Warning:
        return "warning"_L1;
    case Message::Critical:
        return "critical"_L1;
    case Message::Information:
        break;
    }
    return "information"_L1;
}

QLabel *makeText(const QString &name, const QString &text, const QFont &font, QWidget *parent)
{
    auto *label = named(new QLabel(text, parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

/// The width of the widest line of `label`.
int textWidth(const QLabel *label)
{
    return label ? label->fontMetrics().size(0, label->text()).width() : 0;
}

} // namespace

AskingBox::AskingBox(const QString &title, const QString &text, Message::Icon icon, QWidget *parent)
    : QDialog(parent)
    , m_texts(new QVBoxLayout)
    , m_buttons(new QHBoxLayout)
    , m_text(text)
{
    setWindowTitle(title);
    setModal(true);
    setPalette(Theme::of(this).panelPalette());
    setAccessibleDescription(text);

    auto *sign = named(new QLabel(this), u"messageSign"_s);
    sign->setPixmap(Icons::pixmap(signOf(icon), Theme::of(this).scheme, signSize, devicePixelRatioF()));
    sign->setFixedSize(signSize, signSize);
    m_heading = makeText(u"messageHeading"_s, text.section(u'\n', 0, 0), TypeScale::group(), this);
    m_texts->setSpacing(6);
    m_texts->addWidget(m_heading);
    if (const QString rest = text.section(u'\n', 1); !rest.isEmpty()) {
        m_rest = makeText(u"messageText"_s, rest, TypeScale::body(), this);
        m_texts->addWidget(m_rest);
    }
    m_buttons->setSpacing(8);
    m_buttons->addStretch();

    auto *top = new QHBoxLayout;
    top->setSpacing(signGap);
    top->addWidget(sign, 0, Qt::AlignTop);
    top->addLayout(m_texts, 1);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(margin, margin, margin, margin - 6);
    rows->addLayout(top);
    rows->addStretch();
    rows->addSpacing(28);
    rows->addLayout(m_buttons);
}

QPushButton *AskingBox::addButton(Answer answer, bool preselected)
{
    const AnswerButton &look =
        *std::find_if(answerButtons.begin(), answerButtons.end(),
                      [answer](const AnswerButton &button) { return button.answer == answer; });
    QPushButton *button =
        makeButton(look.name, look.caption, this, preselected ? ButtonKind::Main : ButtonKind::Plain);
    button->setMinimumWidth(buttonWidth);
    button->setAutoDefault(true);
    button->setDefault(preselected);
    m_buttons->addWidget(button);
    return button;
}

void AskingBox::settle()
{
    const int around = 2 * margin + signSize + signGap;
    const int text = std::max(textWidth(m_heading), textWidth(m_rest)) + 2;
    const int width = std::clamp(text + around, narrowest, widest);
    setFixedWidth(std::max(width, layout()->minimumSize().width()));
    setFixedHeight(std::max(layout()->totalHeightForWidth(this->width()), layout()->minimumSize().height()));
}

/// Screen readers read the box out of themselves when it alerts them.
void AskingBox::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void AskingBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        QApplication::clipboard()->setText(windowTitle() + u"\n\n"_s + m_text);
    else
        QDialog::keyPressEvent(event);
}

MessageBox::MessageBox(const Message &message, QWidget *parent)
    : AskingBox(message.title, message.text, message.icon, parent)
    , m_answers(message.answers)
    , m_answer(message.answers.contains(Answer::Cancel) ? Answer::Cancel : Answer::Ok)
    , m_isNoSafe(message.preselected == Answer::No)
{
    setObjectName("messageBox"_L1);
    for (const Answer answer : message.answers) {
        QPushButton *button = addButton(answer, answer == message.preselected);
        connect(button, &QPushButton::clicked, this, [this, answer] { take(answer); });
        if (answer == message.preselected)
            button->setFocus();
    }
    settle();
}

void MessageBox::take(Answer answer)
{
    m_answer = answer;
    accept();
}

void MessageBox::reject()
{
    if (m_answers.contains(Answer::Cancel))
        take(Answer::Cancel);
    else if (m_answers.size() < 2)
        take(m_answers.value(0, Answer::Ok));
    else if (m_isNoSafe)
        take(Answer::No);
}

void MessageBox::closeEvent(QCloseEvent *event)
{
    reject();
    event->setAccepted(!isVisible());
}

/// No box can be typed into here, so the letter alone can mean nothing else.
void MessageBox::keyPressEvent(QKeyEvent *event)
{
    const bool isLetter = !(event->modifiers() & ~Qt::ShiftModifier) && !event->isAutoRepeat();
    for (QPushButton *button : findChildren<QPushButton *>()) {
        const QKeySequence key(Qt::ALT | Qt::Key(event->key()));
        if (isLetter && m_answers.size() > 1 && key == QKeySequence::mnemonic(button->text())) {
            button->click();
            return;
        }
    }
    AskingBox::keyPressEvent(event);
}

InputBox::InputBox(const QString &title, const QString &prompt, const QString &preset, QWidget *parent)
    : AskingBox(title, prompt, Message::Question, parent)
    , m_edit(named(new FieldBox(this), u"inputEdit"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"inputRefusal"_s))
{
    setObjectName("inputBox"_L1);
    m_edit->setText(preset);
    m_edit->selectAll();
    m_edit->setAccessibleName(title);
    texts().addSpacing(8);
    texts().addWidget(m_edit);
    texts().addWidget(m_refusal);
    connect(m_edit, &FieldBox::refused, m_refusal, &QLabel::setText);
    connect(m_edit, &QLineEdit::textChanged, m_refusal, &QLabel::clear);
    connect(addButton(Answer::Ok, true), &QPushButton::clicked, this, &QDialog::accept);
    connect(addButton(Answer::Cancel, false), &QPushButton::clicked, this, &QDialog::reject);
    settle();
    m_edit->setFocus();
}

QString InputBox::text() const
{
    return m_edit->text();
}
