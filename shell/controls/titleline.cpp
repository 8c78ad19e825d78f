// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/titleline.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {
constexpr int gap = 16;
} // namespace

TitleLine::TitleLine(const QString &name, const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_title(named(new ElidedLabel(this), name))
    , m_layout(new QHBoxLayout(this))
{
    m_title->setText(title);
    m_title->setFont(TypeScale::windowTitle());
    m_text = title;
    m_title->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(gap);
    m_layout->addWidget(m_title);
    m_layout->addStretch(1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TitleLine::setTitle(const QString &title, const QString &shorter)
{
    m_text = title;
    m_shorter = shorter;
    m_title->setAccessibleName(title);
    fitTitle();
    placeChip();
}

/// A title without a shorter form stays in its letters.
void TitleLine::fitTitle()
{
    const auto fits = [room = width() - rightWidth()](const QFont &font, const QString &text) {
        return QFontMetrics(font).horizontalAdvance(text) <= room;
    };
    const bool isWhole = m_shorter.isEmpty() || !isVisible() || fits(TypeScale::windowTitle(), m_text);
    const QString &shown = isWhole ? m_text : m_shorter;
    const bool isLarge = isWhole || fits(TypeScale::windowTitle(), shown);
    if (m_title->text() != shown)
        m_title->setText(shown);
    if (const QFont font = isLarge ? TypeScale::windowTitle() : TypeScale::group(); m_title->font() != font)
        m_title->setFont(font);
}

QString TitleLine::title() const
{
    return m_text;
}

QLabel *TitleLine::addChip(const QString &name)
{
    m_chip = makeChip(name, {}, this);
    m_chip->hide();
    m_layout->insertWidget(1, m_chip);
    return m_chip;
}

void TitleLine::setChip(const QString &text)
{
    m_chip->setText(text);
    placeChip();
}

QLabel *TitleLine::addWords(const QString &name)
{
    QLabel *words = named(makeQuietLabel({}, this), name);
    addAtRight(words);
    return words;
}

void TitleLine::addAtRight(QWidget *part)
{
    m_layout->addWidget(part);
    m_right.append(part);
}

QSize TitleLine::minimumSizeHint() const
{
    return {m_title->minimumSizeHint().width() + rightWidth(), QWidget::minimumSizeHint().height()};
}

/// What stands at the right needs so much, with the gap before it.
int TitleLine::rightWidth() const
{
    int width = 0;
    for (const QWidget *part : m_right) {
        if (!part->isHidden())
            width += gap + part->sizeHint().width();
    }
    return width;
}

void TitleLine::placeChip()
{
    if (!m_chip)
        return;
    const int needed = m_title->sizeHint().width() + gap + m_chip->sizeHint().width() + rightWidth();
    m_chip->setVisible(!m_chip->text().isEmpty() && needed <= width());
}

bool TitleLine::event(QEvent *event)
{
    // Something at the right has other words, or is hidden.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
        fitTitle();
        placeChip();
    }
    return QWidget::event(event);
}

void TitleLine::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitTitle();
    placeChip();
}
