// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/walkbutton.h"
#include "shell/core/liveline.h"
#include "shell/mainmenu/cardground.h"

#include <optional>

struct FunctionFace;

/// A function on the main menu: its sign, its name and one line of news, over the background picture. Enter,
/// Space and a click open it. It is drawn in the colours of its palette, as any panel.
class FunctionCard final : public WalkButton
{
    Q_OBJECT
public:
    /// Free pixels around the card proper, for its focus ring and its shadow.
    static constexpr int margin = CardGround::margin;

    FunctionCard(const FunctionFace &face, QWidget *parent);

    /// The news; nothing shows what the function is for.
    void setLine(const std::optional<LiveLine> &line);

    /// Disables the card and says why; an empty reason enables it.
    void setMissingReason(const QString &reason);

    /// Cards of one desk set their titles alike, so that all of them fit.
    void setTitleFont(const QFont &font);
    /// Pixels that a title has beside its icon in a card `width` pixels wide, margins not counted.
    static int titleRoom(int width);

    /// Whether the click that is told just now was a key.
    bool isPressedByKey() const { return m_isPressedByKey; }

    QSize sizeHint() const override;
    static int fullHeight();

signals:
    void focused();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void paintLine(QPainter &painter, const QRect &place) const;
    void tellLine();
    QString lineText() const;
    QString cutLine(const QFontMetrics &metrics, int width) const;
    bool hasUserColor() const;
    QColor fill() const;
    QColor titleInk() const;
    QColor lineInk(LiveLine::Urgency urgency) const;
    QFont lineFont() const;
    QRect lineRect() const;

    QString m_quietText;
    QLatin1StringView m_icon;
    std::optional<LiveLine> m_line;
    QString m_missingReason;
    QFont m_titleFont;
    bool m_isPressedByKey = false;
};
