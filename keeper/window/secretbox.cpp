// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/secretbox.h"

#include "keeper/window/secretface.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"
#include "storage/sealing/secretbytes.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int shortPress = 600; ///< milliseconds

/// As many for every secret: their number tells nothing. They look like those that stand for what is typed.
QString dots(const QWidget &line)
{
    return QString(10, QChar(line.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, &line)));
}

} // namespace

SecretLine::SecretLine(QWidget *parent)
    : QLineEdit(parent)
{
    setEchoMode(QLineEdit::Password);
    new PasteFilter(this, Characters::All);
    connect(this, &QLineEdit::textEdited, this, &SecretLine::take);
}

void SecretLine::setCaption(const QString &caption)
{
    m_caption = caption;
    hideAgain();
}

void SecretLine::setSecret(const QString &secret)
{
    SecretBytes::wipe(m_secret);
    m_secret = secret;
    hideAgain();
}

void SecretLine::setOpened(bool isOpened)
{
    m_isOpened = isOpened;
    hideAgain();
}

void SecretLine::setLocked(bool isLocked)
{
    setReadOnly(isLocked);
}

/// The line itself holds nothing while its secret is hidden, not even for those who read the screen in other
/// ways than by looking at it.
void SecretLine::hideAgain()
{
    const QSignalBlocker quiet(this);
    setText(m_isOpened ? m_secret : QString());
    setPlaceholderText(m_secret.isEmpty() ? QString() : dots(*this));
    const QString state = m_secret.isEmpty() ? u"empty"_s : m_isOpened ? u"shown"_s : u"hidden"_s;
    setAccessibleName(m_caption.isEmpty() ? state : m_caption + u", "_s + state);
}

void SecretLine::take(const QString &text)
{
    SecretBytes::wipe(m_secret);
    m_secret = text;
    setPlaceholderText({});
    emit edited();
}

/// Whoever deletes before anything was typed means the whole secret. Cutting, which would delete without
/// anything on the clipboard, only copies.
void SecretLine::keyPressEvent(QKeyEvent *event)
{
    const bool isDeleting = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::Cut)) {
        emit copyWanted();
    } else if (isDeleting && text().isEmpty() && !m_secret.isEmpty() && !isReadOnly()) {
        take({});
        hideAgain();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void SecretLine::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        hideAgain();
}

/// The usual menu would know nothing of a secret that stands behind dots.
void SecretLine::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    QAction *copying = menu.addAction(u"&Copy"_s, this, &SecretLine::copyWanted);
    copying->setEnabled(!m_secret.isEmpty());
    QAction *pasting = menu.addAction(u"&Paste"_s, this, &QLineEdit::paste);
    pasting->setEnabled(!isReadOnly());
    menu.exec(event->globalPos());
}

SecretBox::SecretBox(const QString &name, const QString &caption, QWidget *parent)
    : QWidget(parent)
    , m_line(named(new SecretLine(this), name + u"Line"_s))
    , m_show(makeButton(name + u"Show"_s, u"Show"_s, this))
    , m_copy(makeButton(name + u"Copy"_s, u"Copy"_s, this))
    , m_face(named(new SecretFace(this), name + u"Face"_s))
    , m_words(named(makeQuietLabel({}, this), name + u"Words"_s))
    , m_row(new QHBoxLayout)
{
    setObjectName(name);
    setFocusProxy(m_line);
    m_line->setCaption(caption);
    m_show->setToolTip(u"Shown as long as the button is held; Ctrl+H shows it until it is hidden again"_s);
    m_show->setAccessibleName(u"Show %1"_s.arg(caption));
    m_copy->setAccessibleName(u"Copy %1"_s.arg(caption));
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(6);
    m_row->setSpacing(8);
    m_row->addWidget(m_line, 1);
    m_row->addWidget(m_show);
    m_row->addWidget(m_copy);
    rows->addLayout(m_row);
    rows->addWidget(m_words);
    rows->addWidget(m_face);
    m_words->setWordWrap(true);
    m_words->hide();
    connect(m_show, &QPushButton::pressed, this, &SecretBox::showFace);
    connect(m_show, &QPushButton::released, this, &SecretBox::showFace);
    // Whoever clicks as on other buttons sees the secret flash by: it is said how to see it.
    connect(m_show, &QPushButton::pressed, this, [this] { m_held.start(); });
    connect(m_show, &QPushButton::clicked, this, [this] {
        if (m_held.elapsed() < shortPress)
            QToolTip::showText(m_show->mapToGlobal(QPoint(0, m_show->height())), m_show->toolTip(), m_show);
    });
    connect(m_copy, &QPushButton::clicked, this, &SecretBox::copyWanted);
    connect(m_line, &SecretLine::copyWanted, this, &SecretBox::copyWanted);
    connect(m_line, &QLineEdit::cursorPositionChanged, this, &SecretBox::showFace);
    connect(m_line, &SecretLine::edited, this, [this] {
        showFace();
        emit edited();
        emit typed();
    });
    showFace();
}

void SecretBox::setSecret(const QString &secret)
{
    m_line->setSecret(secret);
    setWords({});
    showFace();
}

void SecretBox::replace(const QString &secret)
{
    setSecret(secret);
    emit edited();
}

void SecretBox::setLocked(bool isLocked)
{
    m_line->setLocked(isLocked);
}

void SecretBox::setShown(bool isShown)
{
    m_isShown = isShown;
    m_line->setOpened(isShown);
    showFace();
}

void SecretBox::setWords(const QString &words)
{
    m_words->setText(words);
    m_words->setVisible(!words.isEmpty());
}

void SecretBox::focusEnd()
{
    m_row->itemAt(m_row->count() - 1)->widget()->setFocus(Qt::TabFocusReason);
}

void SecretBox::addButton(QPushButton *button)
{
    m_row->addWidget(button);
}

void SecretBox::showFace()
{
    const QString none = m_line->secret().isEmpty() ? KeeperWindowLines::noSecret() : QString();
    for (QPushButton *button : {m_show, m_copy})
        setUnavailable(button, none);
    const bool isSeen = none.isEmpty() && (m_isShown || m_show->isDown());
    m_face->setSecret(isSeen ? m_line->secret() : QString());
    m_face->setCaret(m_isShown && m_line->hasFocus() && !m_line->isReadOnly() ? m_line->cursorPosition()
                                                                              : -1);
    m_face->setVisible(isSeen);
}
