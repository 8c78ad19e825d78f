// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/backdrop.h"

#include <QWidget>

class BackgroundSelector;
class CardDesk;
class MenuNews;
class QScrollArea;
class QStackedLayout;
class QTimer;

/// The main menu's work area: the background picture, and on it the cards or, for as long as it is open, the
/// background selector.
class MenuPicture final : public QWidget
{
    Q_OBJECT
public:
    explicit MenuPicture(QWidget *parent);

    CardDesk &desk() const { return *m_desk; }

    void setDate(const QString &date);
    void showNews(const MenuNews &news);

    /// A widget at the top of the main menu, above the cards; see `CardDesk::setTopWidget`.
    void setTopWidget(QWidget *widget);

    /// Shows the picture of this file, read when it is first painted; an empty path is the plain ground.
    void setPicture(const QString &path);

    void showSelector(BackgroundSelector *selector);
    void closeSelector();

signals:
    /// The main menu stands on the screen for the first time.
    void firstPainted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize devicePixels() const;
    void fit();
    void suitHeadInk();

    Backdrop m_backdrop;
    QStackedLayout *m_stack;
    QScrollArea *m_area;
    CardDesk *m_desk;
    QTimer *m_fitSoon; ///< a resized picture is stretched first and decoded anew when the resizing rests
    bool m_painted = false;
};
