// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/functions.h"

#include <QDate>
#include <QWidget>

#include <vector>

class FirstLook;
class FunctionCard;
class MenuNews;
class QLabel;
class TodayPanel;

/// What stands on the background picture: the long date, the sentence of the day and a card for each
/// function, in as many columns as the width allows. Too high for its place, it scrolls.
class CardDesk final : public QWidget
{
    Q_OBJECT
public:
    explicit CardDesk(QWidget *parent);

    void setDate(const QString &date);
    void showNews(const MenuNews &news);
    void setAvailable(Function function, bool available);
    /// The cards take the user's panel colour as panels do.
    QList<QWidget *> panels() const;

    /// Gives `widget` (a search box, say) its place at the top: beside date and sentence, or between them and
    /// the cards where that is too narrow. The Tab key comes to it before the cards.
    void setTopWidget(QWidget *widget);

    /// Shows `firstLook`, while it has something to say, under date and sentence.
    void setFirstLook(FirstLook *firstLook);
    /// Shows `today` below the cards, in what is left of the view's height where that is enough.
    void setToday(TodayPanel *today);

    /// The last that the Tab key comes to.
    QWidget *lastStop() const;

    /// The ink of date and sentence, by what lies under them; with `plate` they get a ground of their own.
    void setHeadInk(const QColor &ink, bool plate);
    /// The place of date and sentence in this widget.
    QRect headRect() const;

    void focusFirstCard();
    int columns() const { return columnsFor(width()); }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The function's card was clicked, or pressed by a key.
    void opened(Function function, bool isByKey);
    /// The date was clicked.
    void dateClicked();
    void cardFocused(QWidget *card);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Measures;

    static int columnsFor(int width);
    void walk(const FunctionCard *card, int key);
    void leaveToday();
    void orderTabs();
    void fit();
    Measures measuresFor(int width) const;
    void measureHead(Measures &m) const;
    void measureToday(Measures &m) const;
    void lower(Measures &m) const;
    void place();
    QFont titleFontFor(int cardWidth) const;
    FunctionCard *card(Function function) const;

    QLabel *m_date;
    QLabel *m_sentence;
    QWidget *m_top = nullptr;
    FirstLook *m_firstLook = nullptr;
    TodayPanel *m_today = nullptr;
    std::vector<FunctionCard *> m_cards;
    mutable QFont m_titles; ///< as measured for a card of the width `m_titlesFor`
    mutable int m_titlesFor = -1;
    bool m_plate = false;
};
