// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"

#include "shell/controls/controls.h"
#include "shell/controls/enterkey.h"
#include "shell/core/dates.h"
#include "shell/core/shellmessages.h"
#include "shell/look/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusTipEvent>
#include <QTimer>
#include <QToolButton>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int barHeight = 32;
constexpr int activityWidth = 132;
constexpr int noticeMilliseconds = 15 * 1000;

/// An upright thin line.
class Rule final : public QWidget
{
public:
    explicit Rule(QWidget *parent)
        : QWidget(parent)
    {
        setFixedWidth(1);
        QPalette colors = palette();
        colors.setColor(QPalette::Window, Theme::of(this).line);
        setPalette(colors);
        setAutoFillBackground(true);
    }
};

/// The row of the bar: where the font is large and the window narrow, `date` gives way before the clock is
/// cut.
class Row final : public QWidget
{
public:
    Row(QWidget *date, QWidget *bar)
        : QWidget(bar)
        , m_date(date)
    {}

protected:
    bool event(QEvent *event) override
    {
        const bool handled = QWidget::event(event);
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
            const int more = m_date->isHidden() ? m_date->sizeHint().width() + layout()->spacing() : 0;
            m_date->setVisible(layout()->minimumSize().width() + more <= parentWidget()->width());
        }
        return handled;
    }

private:
    QWidget *m_date;
};

} // namespace

ActivityBar::ActivityBar(const Clock &clock, const DateStyle &dateStyle, QWidget *parent)
    : QStatusBar(parent)
    , m_clock(clock)
    , m_dateStyle(dateStyle)
    , m_activity(named(new QLabel(this), u"StatusBar1_Panel1"_s))
    , m_readOnly(makeChip(u"StatusBar1_ReadOnly"_s, u"For reading only"_s, this))
    , m_restoreTop(makeLink(u"StatusBar1_RestoreTop"_s, ShellMessages::restoreTopToolbar()))
    , m_restoreSide(makeLink(u"StatusBar1_RestoreSide"_s, ShellMessages::restoreSideToolbars()))
    , m_message(named(new ElidedLabel(this), u"statusMessage"_s))
    , m_way(makeLink(u"statusWay"_s, {}))
    , m_undo(makeLink(u"statusUndo"_s, u"Undo"_s))
    , m_lock(makeLink(u"statusLock"_s, u"Lock Now"_s))
    , m_progress(named(new QProgressBar(this), u"statusProgress"_s))
    , m_stop(named(new QPushButton(u"S&top"_s, this), u"statusStop"_s))
    , m_date(named(new QLabel(this), u"statusDate"_s))
    , m_time(named(new QLabel(this), u"Label4"_s))
    , m_timer(named(new QTimer(this), u"Timer2"_s))
{
    setObjectName("StatusBar1"_L1);
    setSizeGripEnabled(false);
    m_activity->setFont(TypeScale::strong());
    m_activity->setMinimumWidth(activityWidth);
    m_activity->setAccessibleDescription(u"Activity"_s);
    m_time->setFont(TypeScale::strong());
    m_date->setForegroundRole(ThemeRole::quiet);
    m_message->setForegroundRole(ThemeRole::quiet);
    m_message->setAccessibleDescription(u"Message"_s);
    // As wide as what it says, so that what can be clicked stands right behind it.
    m_message->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_progress->setFixedWidth(220);
    m_progress->setAccessibleName(u"Progress"_s);
    m_stop->setFixedHeight(26);
    letEnterPress(m_stop);
    m_lock->setToolTip(u"Covers what the password guards (Ctrl+L)"_s);
    m_progress->hide();
    m_stop->hide();
    m_readOnly->hide();

    auto *row = new Row(m_date, this);
    auto *layout = new QHBoxLayout(row);
    addToRow(*layout);
    row->setMinimumHeight(barHeight - 2);
    addWidget(row, 1);
    setContentsMargins(0, 0, 0, 0);

    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, [this] {
        refreshClock();
        waitForNextMinute();
    });
    connect(m_restoreTop, &QToolButton::clicked, this, &ActivityBar::restoreTopToolbarRequested);
    connect(m_restoreSide, &QToolButton::clicked, this, &ActivityBar::restoreSideToolbarsRequested);
    connect(m_stop, &QPushButton::clicked, this, &ActivityBar::stopRequested);
    connect(m_lock, &QToolButton::clicked, this, &ActivityBar::lockRequested);
    connect(m_undo, &QToolButton::clicked, this, &ActivityBar::undoRequested);
    connect(m_way, &QToolButton::clicked, this, [this] {
        const auto go = m_go; // what it leads to may put another in its place
        go();
    });
    // A status tip would otherwise take the place of the whole bar.
    if (parent)
        parent->installEventFilter(this);
    refreshClock();
}

void ActivityBar::addToRow(QHBoxLayout &row)
{
    row.setContentsMargins(18, 0, 12, 0);
    row.setSpacing(14);
    row.addWidget(m_activity);
    row.addWidget(new Rule(this));
    row.addWidget(m_readOnly);
    row.addWidget(m_restoreTop);
    row.addWidget(m_restoreSide);
    row.addWidget(m_message);
    row.addWidget(m_way);
    row.addWidget(m_undo);
    row.addStretch(1);
    row.addWidget(m_progress);
    row.addWidget(m_stop);
    row.addWidget(m_lock);
    row.addWidget(m_date);
    row.addWidget(m_time);
}

QToolButton *ActivityBar::makeLink(const QString &name, const QString &text)
{
    auto *link = named(new QToolButton(this), name);
    QFont font = TypeScale::body();
    font.setUnderline(true);
    QPalette colors = link->palette();
    colors.setColor(QPalette::ButtonText, Theme::of(this).accent);
    link->setPalette(colors);
    link->setFont(font);
    link->setText(text);
    link->setAccessibleName(text);
    link->setCursor(Qt::PointingHandCursor);
    link->setFocusPolicy(Qt::TabFocus);
    letEnterPress(link);
    link->hide();
    return link;
}

void ActivityBar::setActivity(const QString &activity)
{
    m_activity->setText(activity);
    m_activity->setMinimumWidth(
        std::max(activityWidth, m_activity->fontMetrics().horizontalAdvance(activity)));
}

QString ActivityBar::activity() const
{
    return m_activity->text();
}

void ActivityBar::showReadOnly(const QString &reason)
{
    m_readOnly->setToolTip(reason);
    m_readOnly->setAccessibleDescription(reason);
    m_readOnly->setVisible(!reason.isEmpty());
}

void ActivityBar::say(const QString &message)
{
    m_said = message;
    showMessage();
    m_undo->hide();
    m_way->hide();
}

void ActivityBar::showMessage()
{
    m_message->setText(m_notice.isEmpty() ? m_said : m_notice);
}

void ActivityBar::announce(const QString &notice)
{
    m_notice = notice;
    showMessage();
    QTimer::singleShot(noticeMilliseconds, this, [this] {
        m_notice.clear();
        showMessage();
    });
}

QString ActivityBar::message() const
{
    return m_said;
}

void ActivityBar::offerUndo()
{
    m_undo->show();
}

void ActivityBar::offerWay(const QString &words, std::function<void()> go)
{
    m_way->setText(words);
    m_way->setAccessibleName(words);
    m_go = std::move(go);
    m_way->show();
}

void ActivityBar::offerLock(bool offered)
{
    m_lock->setVisible(offered);
}

void ActivityBar::offerTopToolbar(bool offered)
{
    m_restoreTop->setVisible(offered);
}

void ActivityBar::offerSideToolbars(bool offered)
{
    m_restoreSide->setVisible(offered);
}

void ActivityBar::showProgress(int done, int total, bool stoppable)
{
    m_progress->setVisible(total > 0);
    m_stop->setVisible(total > 0 && stoppable);
    if (total <= 0)
        return;
    m_progress->setMaximum(total);
    m_progress->setValue(done);
    m_progress->setFormat(u"%v of %m"_s);
}

QKeySequence ActivityBar::stopKey() const
{
    return m_stop->isVisible() ? m_stop->shortcut() : QKeySequence();
}

void ActivityBar::startClock()
{
    m_clockRuns = true;
    refreshClock();
    if (isVisible())
        waitForNextMinute();
}

void ActivityBar::refreshClock()
{
    const QDateTime now = m_clock.now();
    m_time->setText(QLocale::c().toString(now.time(), u"h:mm AP"_s));
    m_date->setText(Dates::statusText(now.date(), m_dateStyle));
    const QDate before = std::exchange(m_day, now.date());
    if (before.isValid() && before != m_day)
        emit dayBegan();
}

bool ActivityBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::StatusTip)
        return QStatusBar::eventFilter(watched, event);
    const QString tip = static_cast<QStatusTipEvent *>(event)->tip();
    m_message->setText(tip);
    if (tip.isEmpty())
        showMessage();
    // What can be clicked belongs to what was said.
    for (QToolButton *link : {m_way, m_undo})
        link->setMaximumWidth(tip.isEmpty() ? QWIDGETSIZE_MAX : 0);
    return true;
}

void ActivityBar::showEvent(QShowEvent *event)
{
    QStatusBar::showEvent(event);
    if (m_clockRuns) {
        refreshClock();
        waitForNextMinute();
    }
}

void ActivityBar::hideEvent(QHideEvent *event)
{
    QStatusBar::hideEvent(event);
    m_timer->stop();
}

void ActivityBar::waitForNextMinute()
{
    const QTime now = m_clock.now().time();
    m_timer->start((60 - now.second()) * 1000 - now.msec());
}
