// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/manual/helpviewer.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/listpane.h"
#include "shell/controls/searchbox.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/look/theme.h"
#include "shell/manual/helpentry.h"
#include "shell/manual/manualbrowser.h"
#include "shell/manual/manualprint.h"

#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int contentsWidth = 272;

WindowTraits manualWindow()
{
    WindowTraits traits;
    traits.name = u"HelpViewer"_s;
    traits.caption = u"Quillery Manual"_s;
    traits.activity = u"Manual"_s;
    traits.colors = {SettingsKeys::helpColor, SettingsKeys::helpProgramColor, {}};
    traits.helpContext = HelpContext::ProgramOverview;
    traits.openingSize = {1080, 760};
    return traits;
}

QString pages(qsizetype count)
{
    return count == 1 ? u"1 page"_s : u"%1 pages"_s.arg(count);
}

} // namespace

HelpViewer::HelpViewer(Program &program, QWidget *parent)
    : FunctionWindow(program, manualWindow(), parent)
    , m_manual(program.folder.path())
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    QWidget *contents = makeContents();
    setWork(new SideSplitter(u"contentsSplitter"_s, contents, makePagePanel(),
                             [](QSize) { return contentsWidth; }));
    makeMenus();
    commands().refresh();
    finishFrame();

    // Not sourceChanged(), which comes while source() is still the page before.
    connect(m_browser, &QTextBrowser::historyChanged, this, &HelpViewer::pageShown);
    for (const auto available : {&QTextBrowser::backwardAvailable, &QTextBrowser::forwardAvailable})
        connect(m_browser, available, &commands(), &Commands::refresh);
    connect(m_search, &QLineEdit::textChanged, this, &HelpViewer::search);
    connect(m_search, &QLineEdit::returnPressed, this, &HelpViewer::openHit);
    connect(m_list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            openPage(item->data(HelpEntryDelegate::contextRole).toInt());
    });
    showContents();
    openPage(HelpContext::ProgramOverview);
    m_list->setFocus();
}

QWidget *HelpViewer::makeContents()
{
    m_search = new SearchBox(u"search"_s, u"Search the manual"_s, {}, this);
    m_list = named(new QListWidget(this), u"contents"_s);
    m_list->setAccessibleName(u"Pages of the manual"_s);
    m_list->setItemDelegate(new HelpEntryDelegate(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setMouseTracking(true);
    m_count = named(makeQuietLabel({}, this), u"count"_s);
    m_count->setContentsMargins(4, 0, 0, 0);
    auto *contents = new ListPane(m_search, m_list, m_count, this);
    contents->setMinimumWidth(200);
    return contents;
}

QWidget *HelpViewer::makePagePanel()
{
    QWidget *panel = makePanel(u"pagePanel"_s);
    auto *rows = new QVBoxLayout(panel);
    rows->setContentsMargins(4, 4, 4, 4);
    m_browser = named(new ManualBrowser(m_manual, panel), u"manualPage"_s);
    m_browser->setAccessibleName(u"Page of the manual"_s);
    rows->addWidget(m_browser);
    return panel;
}

void HelpViewer::makeMenus()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    options->addAction(standard(Standard::PanelColor));
    QAction *printing = commands().add(
        options, u"mOPrt"_s, u"&Print"_s, [this] { print(); }, {}, CommonKeys::print);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    QMenu *go = addMenu(u"mG"_s, u"&Go"_s);
    QAction *back = commands().add(
        go, u"mGBack"_s, u"&Back"_s, [this] { m_browser->backward(); },
        [this] {
            return m_browser->isBackwardAvailable() ? QString() : u"No page was shown before this one."_s;
        },
        QKeySequence::Back);
    QAction *forward = commands().add(
        go, u"mGForward"_s, u"&Forward"_s, [this] { m_browser->forward(); },
        [this] {
            return m_browser->isForwardAvailable() ? QString() : u"This is the last page that was shown."_s;
        },
        QKeySequence::Forward);
    go->addSeparator();
    const auto find = [this] {
        closePreview();
        m_search->startAgain();
    };
    commands().add(go, u"mGFind"_s, u"&Search the Manual"_s, find, {}, CommonKeys::search);

    commands().tool(back, "previous"_L1, u"Back"_s);
    commands().tool(forward, "next"_L1, u"Forward"_s);
    commands().separateTools();
    commands().tool(printing, "print"_L1, u"Print"_s);
    addStandardTool(Standard::PanelColor);
}

void HelpViewer::print()
{
    const auto page = [this](const PageContext &context) {
        return printedManualPage(m_manual.page(currentContext()), context);
    };
    showPreview(page, m_manual.page(currentContext()).title);
}

void HelpViewer::openPage(int context)
{
    closePreview();
    m_browser->openPage(context);
}

int HelpViewer::currentContext() const
{
    return m_browser->currentContext();
}

void HelpViewer::showContents()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const ManualPage &page : m_manual.pages()) {
        auto *item = new QListWidgetItem(page.title, m_list);
        item->setData(HelpEntryDelegate::contextRole, page.context);
    }
    m_count->setText(pages(m_manual.pages().size()));
    m_browser->setExtraSelections({});
    pageShown();
}

void HelpViewer::search()
{
    const QString words = m_search->text().simplified();
    if (words.isEmpty()) {
        showContents();
        return;
    }
    const QList<ManualHit> hits = m_manual.find(words);
    // Without a hit the list stays as it was.
    if (hits.isEmpty()) {
        m_count->setText(u"Nothing found"_s);
        return;
    }
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const ManualHit &hit : hits) {
        auto *item = new QListWidgetItem(hit.title, m_list);
        item->setData(HelpEntryDelegate::contextRole, hit.context);
        item->setData(HelpEntryDelegate::excerptRole, hit.excerpt);
    }
    m_count->setText(u"Found on "_s + pages(hits.size()));
    pageShown();
}

void HelpViewer::openHit()
{
    if (m_search->text().simplified().isEmpty() || m_manual.find(m_search->text()).isEmpty())
        return;
    if (!m_list->currentItem())
        m_list->setCurrentRow(0);
    m_list->setFocus();
}

/// The list follows the page, however it was reached.
void HelpViewer::pageShown()
{
    const QSignalBlocker quiet(m_list);
    QListWidgetItem *shown = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(HelpEntryDelegate::contextRole).toInt() == currentContext())
            shown = m_list->item(row);
    }
    m_list->setCurrentItem(shown);
    markWords();
}

void HelpViewer::markWords()
{
    m_browser->markWords(m_search->text().simplified().split(u' ', Qt::SkipEmptyParts));
}
