// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/carddesk.h"

#include "shell/controls/controls.h"
#include "shell/controls/gridwalk.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/firstlook.h"
#include "shell/mainmenu/functioncard.h"
#include "shell/mainmenu/menunews.h"
#include "shell/mainmenu/todaypanel.h"
#include "shell/program/functionfaces.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int narrowestCard = 216;
constexpr int widestCard = 320;
constexpr int twoColumnsBelow = 720;
/// One pixel more than the 960 of a full-HD screen at 200 %.
constexpr int threeColumnsBelow = 961;
constexpr int roomyWidth = 1200;
constexpr qreal smallestTitle = 10.5;
constexpr int narrowestTop = 260;
constexpr int widestTop = 420;
constexpr int topGap = 24;
constexpr int below = 20;
/// What is left below the cards for the days to come before the cards stand lower.
constexpr int roomForToday = 260;
constexpr int lowest = 100;

} // namespace

/// Where things stand at one width; all in pixels, cards without their own margins.
struct CardDesk::Measures {
    int columns;
    int side; ///< left of the first column
    int gap;
    int cardWidth;
    int cardHeight;
    int top;
    QRect date;
    QRect sentence;
    QRect firstLook;
    QRect topWidget;
    int cardsTop;
    QRect today;
    int height;
};

CardDesk::CardDesk(QWidget *parent)
    : QWidget(parent)
    , m_date(named(new QLabel(this), u"dateLabel"_s))
    , m_sentence(named(new QLabel(this), u"sentenceLabel"_s))
{
    named(this, u"cardDesk"_s);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    m_date->setFont(TypeScale::date());
    QFont plain = TypeScale::group();
    plain.setWeight(QFont::Normal);
    m_sentence->setFont(plain);
    m_sentence->setWordWrap(true);
    m_sentence->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    for (const FunctionFace &face : FunctionFaces::cards()) {
        auto *card = new FunctionCard(face, this);
        connect(card, &FunctionCard::clicked, this,
                [this, card, function = face.function] { emit opened(function, card->isPressedByKey()); });
        connect(card, &FunctionCard::focused, this, [this, card] { emit cardFocused(card); });
        connect(card, &FunctionCard::walked, this, [this, card](int key) { walk(card, key); });
        m_cards.push_back(card);
    }
}

void CardDesk::walk(const FunctionCard *card, int key)
{
    if (FunctionCard *next = GridWalk::next<FunctionCard>(m_cards, card, columns(), key))
        next->setFocus(Qt::TabFocusReason);
    else if (key == Qt::Key_Down && m_today && m_today->isVisible())
        m_today->setFocus(Qt::TabFocusReason);
    else if (key == Qt::Key_Up && m_firstLook && m_firstLook->isVisible())
        m_firstLook->takeFocus();
}

void CardDesk::leaveToday()
{
    const auto last = std::find_if(m_cards.rbegin(), m_cards.rend(),
                                   [](const FunctionCard *card) { return card->isEnabled(); });
    if (last != m_cards.rend())
        (*last)->setFocus(Qt::BacktabFocusReason);
}

FunctionCard *CardDesk::card(Function function) const
{
    const auto faces = FunctionFaces::cards();
    for (std::size_t i = 0; i < faces.size(); ++i)
        if (faces[i].function == function)
            return m_cards[i];
    return nullptr;
}

void CardDesk::setDate(const QString &date)
{
    m_date->setText(date);
    place();
}

void CardDesk::showNews(const MenuNews &news)
{
    const auto faces = FunctionFaces::cards();
    for (std::size_t i = 0; i < faces.size(); ++i)
        m_cards[i]->setLine(news.line(faces[i].function));
    m_sentence->setText(news.sentence());
    fit();
}

void CardDesk::setAvailable(Function function, bool available)
{
    if (FunctionCard *found = card(function))
        found->setMissingReason(available ? QString() : FunctionFaces::of(function).missingReason());
    if (function == Function::Planner)
        m_date->setCursor(available ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

QList<QWidget *> CardDesk::panels() const
{
    QList<QWidget *> panels(m_cards.begin(), m_cards.end());
    if (m_today)
        panels.append(m_today);
    return panels;
}

void CardDesk::setTopWidget(QWidget *widget)
{
    m_top = widget;
    m_top->setParent(this);
    m_top->show();
    orderTabs();
    fit();
}

void CardDesk::setFirstLook(FirstLook *firstLook)
{
    m_firstLook = firstLook;
    m_firstLook->setParent(this);
    orderTabs();
    connect(m_firstLook, &FirstLook::changed, this, &CardDesk::fit);
    connect(m_firstLook, &FirstLook::leftDownward, this, &CardDesk::focusFirstCard);
}

QWidget *CardDesk::lastStop() const
{
    return m_today ? m_today->focusProxy() : m_cards.back();
}

/// What stands at the top comes first, then the links, the cards and today's list.
void CardDesk::orderTabs()
{
    QList<QWidget *> order;
    if (m_top)
        order << m_top;
    if (m_firstLook)
        for (QAbstractButton *link : m_firstLook->findChildren<QAbstractButton *>())
            order << link;
    order.append({m_cards.begin(), m_cards.end()});
    order << lastStop();
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void CardDesk::fit()
{
    updateGeometry();
    place();
}

void CardDesk::setToday(TodayPanel *today)
{
    m_today = today;
    m_today->setParent(this);
    orderTabs();
    connect(m_today, &TodayPanel::leftUpward, this, &CardDesk::leaveToday);
    connect(m_today, &TodayPanel::focused, this, [this] { emit cardFocused(m_today); });
    connect(m_today, &TodayPanel::sizeChanged, this, &CardDesk::fit);
}

void CardDesk::setHeadInk(const QColor &ink, bool plate)
{
    for (QLabel *label : {m_date, m_sentence}) {
        QPalette colors = label->palette();
        colors.setColor(QPalette::WindowText, ink);
        label->setPalette(colors);
    }
    if (m_firstLook)
        m_firstLook->setInk(ink);
    m_plate = plate;
    update();
}

QRect CardDesk::headRect() const
{
    const QRect text = m_sentence->geometry();
    const int width = std::max(QFontMetrics(m_date->font()).horizontalAdvance(m_date->text()),
                               QFontMetrics(m_sentence->font()).horizontalAdvance(m_sentence->text()));
    QRect head = m_date->geometry().united(text);
    head.setWidth(std::min(width, head.width()));
    if (m_firstLook && !m_firstLook->isHidden())
        head |= QRect(m_firstLook->pos(), m_firstLook->sizeHint());
    return head;
}

void CardDesk::focusFirstCard()
{
    for (FunctionCard *card : m_cards) {
        if (card->isEnabled()) {
            card->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

int CardDesk::columnsFor(int width)
{
    if (width < twoColumnsBelow)
        return 2;
    return width < threeColumnsBelow ? 3 : 4;
}

CardDesk::Measures CardDesk::measuresFor(int width) const
{
    Measures m{};
    m.columns = columnsFor(width);
    const bool roomy = width >= roomyWidth;
    m.gap = roomy ? 18 : 16;
    const int rim = roomy ? 64 : width >= 1020 ? 32 : width >= 740 ? 24 : 16;
    m.cardWidth = std::clamp((width - 2 * rim - (m.columns - 1) * m.gap) / m.columns, 1, widestCard);
    const int block = m.columns * m.cardWidth + (m.columns - 1) * m.gap;
    m.side = (width - block) / 2;
    m.cardHeight = FunctionCard::fullHeight() - 2 * FunctionCard::margin;
    m.top = roomy ? 28 : 20;
    measureHead(m);
    m.cardsTop += roomy ? 18 : 14;
    const int rows = (int(m_cards.size()) + m.columns - 1) / m.columns;
    m.height = m.cardsTop + rows * m.cardHeight + (rows - 1) * m.gap + below;
    lower(m);
    if (m_today && m_today->hasSomething())
        measureToday(m);
    return m;
}

/// On a high screen everything stands a little lower, the same whether the days to come are known yet or not.
void CardDesk::lower(Measures &m) const
{
    const int spare = (parentWidget() ? parentWidget()->height() : 0) - m.height - roomForToday;
    const int drop = std::clamp(spare / 3, 0, lowest);
    for (QRect *rect : {&m.date, &m.sentence, &m.firstLook, &m.topWidget})
        rect->translate(0, drop);
    m.cardsTop += drop;
    m.height += drop;
}

/// What the cards leave of the view is the panel's; where that is too little, it is scrolled to.
void CardDesk::measureToday(Measures &m) const
{
    constexpr int rim = FunctionCard::margin;
    const int top = m.height - below + m.gap;
    const int width = m.columns * m.cardWidth + (m.columns - 1) * m.gap + 2 * rim;
    const int view = parentWidget() ? parentWidget()->height() : 0;
    const int height = m_today->heightFor(width, view - below - top + 2 * rim);
    m.today = QRect(m.side - rim, top - rim, width, height);
    m.height = m.today.bottom() + 1 - rim + below;
}

/// Date, sentence and what stands at the top. The cards may begin right below it.
void CardDesk::measureHead(Measures &m) const
{
    const int block = m.columns * m.cardWidth + (m.columns - 1) * m.gap;
    const QFontMetrics dates(m_date->font());
    const QFontMetrics sentences(m_sentence->font());
    const int beside = block - dates.horizontalAdvance(m_date->text()) - topGap;
    const bool isBeside = m_top && beside >= narrowestTop;
    const int topWidth = std::min(isBeside ? beside : block, widestTop);
    const int words = isBeside ? block - topWidth - topGap : block;
    m.date =
        QRect(m.side, m.top, std::min(words, dates.horizontalAdvance(m_date->text()) + 2), dates.height());
    const QRect bounds =
        sentences.boundingRect(QRect(0, 0, words, 1000), Qt::TextWordWrap, m_sentence->text());
    m.sentence = QRect(m.side, m.date.bottom() + 3, words, std::max(bounds.height(), sentences.height()) + 2);
    m.cardsTop = m.sentence.bottom();
    if (m_firstLook && !m_firstLook->isHidden()) {
        m.firstLook = QRect(m.side - FirstLook::indent, m.cardsTop + 4, block + FirstLook::indent,
                            m_firstLook->sizeHint().height());
        m.cardsTop = m.firstLook.bottom();
    }
    if (!m_top)
        return;
    const int height = m_top->sizeHint().height();
    if (isBeside) {
        m.topWidget = QRect(m.side + block - topWidth, m.date.center().y() - height / 2, topWidth, height);
        m.cardsTop = std::max(m.cardsTop, m.topWidget.bottom());
    } else {
        m.topWidget = QRect(m.side, m.cardsTop + 10, topWidth, height);
        m.cardsTop = m.topWidget.bottom();
    }
}

int CardDesk::heightForWidth(int width) const
{
    return measuresFor(width).height;
}

QSize CardDesk::sizeHint() const
{
    return {twoColumnsBelow, heightForWidth(twoColumnsBelow)};
}

QSize CardDesk::minimumSizeHint() const
{
    return {2 * narrowestCard + 64, 1};
}

void CardDesk::resizeEvent(QResizeEvent *)
{
    place();
}

void CardDesk::place()
{
    const Measures m = measuresFor(width());
    m_date->setGeometry(m.date);
    m_sentence->setGeometry(m.sentence);
    if (m_firstLook)
        m_firstLook->setGeometry(m.firstLook);
    if (m_top)
        m_top->setGeometry(m.topWidget);
    const QFont titles = titleFontFor(m.cardWidth);
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        const int column = int(i) % m.columns;
        const int row = int(i) / m.columns;
        const QRect card(m.side + column * (m.cardWidth + m.gap), m.cardsTop + row * (m.cardHeight + m.gap),
                         m.cardWidth, m.cardHeight);
        constexpr int rim = FunctionCard::margin;
        m_cards[i]->setTitleFont(titles);
        m_cards[i]->setGeometry(card.adjusted(-rim, -rim, rim, rim));
    }
    if (m_today)
        m_today->setGeometry(m.today);
}

/// The card title's step of the scale, less as much as wide platform fonts ask for.
QFont CardDesk::titleFontFor(int cardWidth) const
{
    if (m_titlesFor == cardWidth)
        return m_titles;
    QFont font = TypeScale::cardTitle();
    const int room = FunctionCard::titleRoom(cardWidth);
    const auto fits = [&] {
        const QFontMetrics metrics(font);
        return std::all_of(m_cards.begin(), m_cards.end(), [&](const FunctionCard *card) {
            return metrics.horizontalAdvance(card->text()) <= room;
        });
    };
    while (!fits() && font.pointSizeF() > smallestTitle)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    m_titlesFor = cardWidth;
    return m_titles = font;
}

void CardDesk::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_date->geometry().contains(event->pos()))
        emit dateClicked();
    QWidget::mouseReleaseEvent(event);
}

void CardDesk::paintEvent(QPaintEvent *)
{
    if (!m_plate)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor plate = Theme::of(this).panel;
    plate.setAlphaF(0.86F);
    painter.setBrush(plate);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(headRect().adjusted(-16, -8, 16, 8), 10, 10);
}
