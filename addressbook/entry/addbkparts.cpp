// How the address book's screen is put together.

#include "addressbook/entry/entrywindow.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/entry/namelistmodel.h"
#include "addressbook/entry/namelistview.h"
#include "addressbook/entry/picturepanel.h"
#include "addressbook/entry/printoptions.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/shared/serialmodem.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/pictures/enlargedpicture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leftPaneWidth = 272;
constexpr int narrowLeftPaneWidth = 212;
/// Windows narrower than this have the narrow left pane.
constexpr int wideFrom = 1200;

WindowTraits traits()
{
    WindowTraits traits;
    traits.name = u"ADDBKVIEW"_s;
    traits.caption = u"Family/Friends Data View Screen"_s;
    traits.activity = u"View Screen"_s;
    traits.colors = {SettingsKeys::addressEntryColor, SettingsKeys::addressEntryProgramColor,
                     SettingsKeys::addressEntryTextColor};
    traits.helpContext = HelpContext::AddressBook;
    traits.topToolbar = SettingsKeys::topToolbar;
    return traits;
}

QVBoxLayout *pageLayout(QWidget *page)
{
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 16, 24, 18);
    layout->setSpacing(12);
    return layout;
}

} // namespace

ADDBKVIEW::ADDBKVIEW(Program &program, QWidget *parent, Dialler::MakeModem makeModem)
    : FunctionWindow(program, traits(), parent)
    , m_book(program.folder)
    , m_pictures(program.folder)
    , m_names(new NameListModel(this))
{
    m_splitter = named(new QSplitter(Qt::Horizontal), u"leftPaneSplitter"_s);
    m_splitter->addWidget(makeLeftPane());
    m_splitter->addWidget(makeWorkPanel());
    m_splitter->setStretchFactor(1, 1);
    setWork(m_splitter);
    if (!makeModem)
        makeModem = [] { return std::make_unique<SerialModem>(); };
    m_dialler = std::make_unique<Dialler>(program, this, m_form->dialingLabel(), std::move(makeModem));
    makeMenus();
    makeToolbar();
    connectParts();
    setTabOrders();
    rememberSplitter(m_splitter);
    finishFrame();
    placeSplitter();

    loadNames();
    if (m_names->names().isEmpty()) {
        showNothing();
    } else {
        selectRow(0);
        showSelected();
        m_list->setFocus();
    }
}

ADDBKVIEW::~ADDBKVIEW() = default;

QWidget *ADDBKVIEW::makeLeftPane()
{
    auto *pane = new QWidget(this);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    m_searchBox = named(new QLineEdit(pane), u"Text2"_s);
    m_searchBox->setPlaceholderText(u"Search names"_s);
    m_searchBox->setAccessibleName(u"Search names"_s);
    m_searchBox->addAction(Icons::icon("search"_L1, Theme::of(this).scheme), QLineEdit::LeadingPosition);
    m_searchBox->setToolTip(u"Type a part of a name and press Enter"_s);
    m_searchBox->installEventFilter(this);
    m_list = named(new NameListView(pane), u"List1"_s);
    m_list->setAccessibleName(u"Names"_s);
    m_list->setModel(m_names);
    m_count = named(makeQuietLabel({}, pane), u"Label1"_s);
    layout->addWidget(m_searchBox);
    layout->addWidget(new WholeRows(m_list, m_count, pane), 1);
    pane->setMinimumWidth(180);
    return pane;
}

QWidget *ADDBKVIEW::makeWorkPanel()
{
    QWidget *panel = makePanel(u"Panel3D1"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_pages = new QStackedWidget(panel);
    layout->addWidget(m_pages);
    m_entryPage = makeEntryPage();
    m_emptyPage = makeEmptyPage();
    m_enlarged = new EnlargedPicture(program().folder, u"pictureNormal"_s, u"Normal"_s);
    connect(m_enlarged, &EnlargedPicture::left, this, &ADDBKVIEW::leavePanel);
    m_picturePanel = named(new PicturePanel(program()), u"picturePanel"_s);
    m_printOptions = named(new PrintOptions, u"printOptions"_s);
    for (QWidget *page : std::initializer_list<QWidget *>{m_entryPage, m_emptyPage, m_enlarged,
                                                          m_picturePanel, m_printOptions})
        m_pages->addWidget(page);
    return panel;
}

QWidget *ADDBKVIEW::makeEntryPage()
{
    auto *page = new QWidget;
    QVBoxLayout *layout = pageLayout(page);
    m_title = named(new ElidedLabel(page), u"entryTitle"_s);
    m_title->setFont(TypeScale::windowTitle());
    m_title->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_chip = makeChip(u"modeChip"_s, {}, page);
    auto *titleLine = new QHBoxLayout;
    titleLine->setSpacing(22);
    titleLine->addWidget(m_title);
    titleLine->addWidget(m_chip);
    titleLine->addStretch(1);
    QLabel *words = named(makeQuietLabel({}, page), u"titleWords"_s);
    titleLine->addWidget(words);
    layout->addLayout(titleLine);

    m_form = new AddressForm(clock(), program().state.dateStyle, this);
    QScrollArea *scroll = makeScrolling(m_form, u"formScroll"_s, page);
    connect(scroll->verticalScrollBar(), &QScrollBar::valueChanged, m_form->datePicker(),
            &DatePicker::reposition);
    connect(m_form, &AddressForm::boxFocused, scroll,
            [scroll](QWidget *box) { scroll->ensureWidgetVisible(box, 8, 32); });
    layout->addWidget(scroll, 1);
    layout->addWidget(makeLine(page));
    layout->addWidget(makeButtonRow());
    connect(m_buttonRow, &ButtonRow::wordsLeftOut, words, &QLabel::setText);
    return page;
}

QWidget *ADDBKVIEW::makeEmptyPage()
{
    auto *page = new EmptyPage("address-book"_L1, u"Nobody is in the address book yet"_s,
                               u"Type the first entry, or take in addresses you already have."_s);
    QPushButton *start = makeButton(u"emptyEntryScreen"_s, u"E&ntry Screen"_s, page, ButtonKind::Main);
    connect(start, &QPushButton::clicked, this, &ADDBKVIEW::startEntry);
    m_restoreButton = makeButton(u"emptyRestore"_s, u"&Restore Files from Disk"_s, page);
    connect(m_restoreButton, &QPushButton::clicked, this, &ADDBKVIEW::openBackup);
    page->addButton(start);
    page->addButton(m_restoreButton);
    return page;
}

void ADDBKVIEW::connectParts()
{
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ADDBKVIEW::selectionMoved);
    connect(m_searchBox, &QLineEdit::returnPressed, this, &ADDBKVIEW::searchNames);
    connect(m_form, &AddressForm::edited, this, &ADDBKVIEW::refreshModified);
    connect(m_form, &AddressForm::said, &activity(), &ActivityBar::say);
    connect(m_form, &AddressForm::dialRequested, this, &ADDBKVIEW::dial);
    connect(m_form->enlargeButton(), &QPushButton::clicked, this, &ADDBKVIEW::enlargePicture);
    connect(m_picturePanel, &PicturePanel::pictureEntered, this, &ADDBKVIEW::takePicture);
    connect(m_picturePanel, &PicturePanel::pictureDeleted, this, [this] { takePicture(noPicture); });
    connect(m_picturePanel, &PicturePanel::left, this, &ADDBKVIEW::leavePanel);
    connect(m_picturePanel, &PicturePanel::said, &activity(), &ActivityBar::say);
    connect(m_printOptions, &PrintOptions::entryRequested, this, &ADDBKVIEW::printShown);
    connect(m_printOptions, &PrintOptions::worksheetRequested, this, &ADDBKVIEW::printWorksheet);
    connect(m_printOptions, &PrintOptions::cardsRequested, this, &ADDBKVIEW::printCards);
    connect(m_printOptions, &PrintOptions::left, this, &ADDBKVIEW::leavePanel);
}

void ADDBKVIEW::setTabOrders()
{
    QVector<QWidget *> order{m_searchBox, m_list};
    order += m_form->tabOrder();
    order += {m_clearButton,  m_deleteButton, m_pictureButton, m_printButton,
              m_switchButton, m_modifyButton, m_saveNewButton, m_exitButton};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

/// Until the user moves it, the left pane is as wide as suits the window.
void ADDBKVIEW::placeSplitter()
{
    if (!m_splitter || isPlaced(m_splitter))
        return;
    const int left = width() < wideFrom ? narrowLeftPaneWidth : leftPaneWidth;
    m_splitter->setSizes({left, std::max(1, m_splitter->width() - left - m_splitter->handleWidth())});
}
