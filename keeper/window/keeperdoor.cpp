// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperdoor.h"

#include "keeper/model/keeper.h"
#include "keeper/model/keeperopening.h"
#include "keeper/model/messages.h"
#include "keeper/window/codepanel.h"
#include "keeper/window/masterpanel.h"
#include "keeper/window/setupview.h"
#include "keeper/window/strengthwords.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/unlockview.h"
#include "shell/core/passwordlines.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "storage/sealing/recoverycode.h"

#include <QDir>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

UnlockView::Words unlockWords()
{
    return {.icon = "password-keeper"_L1,
            .title = KeeperWindowLines::isLocked(),
            .sentence = KeeperWindowLines::lockedWords(),
            .caption = KeeperWindowLines::masterCaption(),
            .usePassword = KeeperWindowLines::useMaster(),
            .missing = KeeperWindowLines::masterMissing(),
            .trying = KeeperWindowLines::trying()};
}

WrongAnswers counted(const KeySlots::WrongAnswers &wrong)
{
    return {int(wrong.count), wrong.first.toLocalTime(), wrong.last.toLocalTime()};
}

} // namespace

KeeperDoor::KeeperDoor(const KeeperDesk &desk, std::chrono::milliseconds step, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_step(new ThreadedStep(this))
    , m_attempts(m_memory, step)
    , m_unlock(new UnlockView(unlockWords(), {u"masterPassword"_s, u"openKeeper"_s}))
    , m_setUp(new SetUpView([this](const QString &typed) { return m_desk.strength.ofMaster(typed); }))
{
    for (QWidget *home : std::initializer_list<QWidget *>{m_unlock, m_setUp}) {
        m_desk.views.addHome(home);
        home->hide(); // until it is the one
    }
    connect(m_unlock, &UnlockView::answered, this, &KeeperDoor::answer);
    connect(m_setUp, &SetUpView::chosen, this, &KeeperDoor::begin);
    connect(m_setUp, &SetUpView::said, this, &KeeperDoor::said);
    connect(&m_attempts, &Attempts::waiting, this, [this](int seconds) {
        m_unlock->refuse(KeeperWindowLines::wrongMaster() + u' ' + KeeperWindowLines::tryAgainIn(seconds),
                         true);
    });
    connect(&m_attempts, &Attempts::waited, this,
            [this] { m_unlock->refuse(KeeperWindowLines::wrongMaster()); });
    connect(&m_attempts, &Attempts::spent, this,
            [this] { m_unlock->refuse(KeeperWindowLines::answersSpent(), true); });
}

KeeperDoor::~KeeperDoor() = default;

void KeeperDoor::addCommands(QMenu *menu)
{
    m_desk.commands.writing(m_desk.commands.add(
        menu, u"mUMaster"_s, u"Change &Master Password..."_s, [this] { openMasterPanel(false); },
        [this] { return whyNotOpen(); }));
    m_desk.commands.writing(m_desk.commands.add(
        menu, u"mUCode"_s, u"New Re&covery Code..."_s, [this] { makeCode(); },
        [this] { return whyNotOpen(); }));
}

QString KeeperDoor::whyNotOpen() const
{
    return m_desk.keeper.state() == Keeper::State::Open ? QString() : KeeperWindowLines::isLocked();
}

void KeeperDoor::showCodeAgain()
{
    if (m_code && !m_code->code().isEmpty())
        m_desk.views.open(m_code);
}

void KeeperDoor::forget()
{
    if (m_code)
        m_code->forget();
}

void KeeperDoor::show()
{
    switch (m_desk.keeper.state()) {
    case Keeper::State::Open:
        return;
    case Keeper::State::None:
        m_desk.views.setHome(m_setUp);
        m_desk.views.goHome();
        m_setUp->start();
        return;
    case Keeper::State::Locked:
        m_desk.views.setHome(m_unlock);
        m_desk.views.goHome();
        m_unlock->start();
        m_attempts.resume(counted(m_desk.keeper.wrongAnswers()), m_desk.program.clock.now());
        if (m_desk.keeper.isOneCopyDamaged())
            emit said(KeeperWindowLines::oneCopyDamaged());
        return;
    default:
        showTrouble();
    }
}

/// Nothing is written while the files are like this.
void KeeperDoor::showTrouble()
{
    const Keeper &keeper = m_desk.keeper;
    const QString folder = QDir::toNativeSeparators(m_desk.program.folder.path());
    const bool isForeign = keeper.state() == Keeper::State::Foreign;
    const QString foreign = keeper.foreignFiles().join(KeeperWindowLines::andWord());
    QString sentence = KeeperWindowLines::keyFileDamaged();
    QString line = KeeperWindowLines::restoreKeyFile(folder);
    if (keeper.state() == Keeper::State::FileMissing) {
        const QString missing = keeper.missingFile();
        sentence = KeeperWindowLines::fileMissing(missing);
        line = KeeperWindowLines::restoreFile(missing, folder);
    } else if (keeper.state() == Keeper::State::Newer) {
        sentence = KeeperWindowLines::newerTitle();
        line = KeeperWindowLines::newerWords();
    } else if (isForeign) {
        const bool isOne = keeper.foreignFiles().size() == 1;
        sentence = KeeperWindowLines::foreignTitle(foreign, isOne);
        line = KeeperWindowLines::foreignWords(isOne);
    }
    if (m_trouble)
        m_trouble->deleteLater();
    auto *page = named(new EmptyPage("password-keeper"_L1, sentence, line), u"keeperTrouble"_s);
    m_trouble = page;
    if (isForeign) {
        QPushButton *aside = makeButton(u"setAside"_s, u"&Set Aside..."_s, page, ButtonKind::Main);
        setUnavailable(aside, m_desk.program.folder.whyReadOnly());
        connect(aside, &QPushButton::clicked, this, &KeeperDoor::setFilesAside);
        page->addButton(aside);
    }
    m_desk.views.addHome(page);
    m_desk.views.setHome(page);
    m_desk.views.goHome();
    page->setFocus();
}

void KeeperDoor::setFilesAside()
{
    const QStringList names = m_desk.keeper.foreignFiles();
    QStringList asides;
    asides.reserve(names.size());
    for (const QString &name : names) {
        const qsizetype dot = name.lastIndexOf(u'.');
        asides.append(name.left(dot) + u" (set aside)"_s + name.mid(dot));
    }
    if (m_desk.program.dialogs.ask(&m_desk.window, KeeperMessages::setAside(names, asides)) != Answer::Yes)
        return;
    if (!m_desk.keeper.setAside())
        emit said(KeeperWindowLines::notSetAside());
    show();
    m_desk.commands.refresh();
}

void KeeperDoor::work(const std::function<void()> &slow, const std::function<void()> &then)
{
    m_desk.setBusy(true);
    m_step->start(slow, [this, then] {
        m_desk.setBusy(false);
        then();
    });
}

void KeeperDoor::answer(const QString &text)
{
    const Slot slot = m_unlock->isForCode() ? KeySlots::Recovery : KeySlots::Password;
    auto opening = m_desk.keeper.opening(text, slot);
    if (!opening) {
        m_unlock->refuse(m_unlock->isForCode() ? PasswordLines::recoveryCodeSlip()
                                               : KeeperWindowLines::wrongMaster());
        if (m_desk.keeper.state() != Keeper::State::Locked)
            show();
        return;
    }
    m_unlock->setTrying(true);
    m_isLockDue = false;
    const auto shared = std::make_shared<KeeperOpening>(std::move(*opening));
    work([shared] { shared->run(); },
         [this, shared, slot] {
             m_unlock->setTrying(false);
             judge(std::move(*shared), slot);
             if (m_isLockDue)
                 emit lockDue();
         });
}

void KeeperDoor::lockBehind()
{
    m_isLockDue = true;
}

void KeeperDoor::judge(KeeperOpening opening, Slot slot)
{
    if (!opening.isJudged()) {
        m_unlock->refuse(KeeperWindowLines::notEnoughMemory());
        return;
    }
    const WrongAnswers before = counted(m_desk.keeper.wrongAnswers());
    if (!m_desk.keeper.unlock(std::move(opening))) {
        m_attempts.addWrong(counted(m_desk.keeper.wrongAnswers()));
        return;
    }
    m_attempts.reset();
    m_unlock->start();
    emit opened(before.words(m_desk.program.state.dateStyle, m_desk.program.clock.today()));
    if (slot == KeySlots::Recovery)
        openMasterPanel(true);
    else if (const QString code = m_desk.keeper.settings().newCode; !code.isEmpty())
        showCode(code);
}

void KeeperDoor::begin(const QString &master)
{
    m_setUp->setMaking(true);
    const QString code = RecoveryCode::generate();
    const auto first = std::make_shared<KeyDerivation>(m_desk.keeper.newKey(master));
    const auto second = std::make_shared<KeyDerivation>(m_desk.keeper.newCodeKey(code));
    work(
        [first, second] {
            first->run();
            second->run();
        },
        [this, first, second, code] {
            m_setUp->setMaking(false);
            if (!first->isDone() || !second->isDone() || !m_desk.keeper.create(*first, *second)) {
                emit said(first->isDone() && second->isDone() ? KeeperWindowLines::notMade()
                                                              : KeeperWindowLines::notEnoughMemory());
                return;
            }
            m_setUp->start();
            emit opened({});
            noteCode(code);
            showCode(code);
        });
}

void KeeperDoor::openMasterPanel(bool isForgotten)
{
    if (!m_master) {
        m_master = new MasterPanel([this](const QString &typed) { return m_desk.strength.ofMaster(typed); });
        m_desk.views.addPanel(m_master);
        connect(m_master, &MasterPanel::chosen, this, &KeeperDoor::changeMaster);
    }
    m_desk.window.closePreview();
    m_desk.views.open(m_master);
    m_master->start(isForgotten);
}

/// Both are derived in one go, the old one first: a wrong one is heard of as soon as a right one would be.
void KeeperDoor::changeMaster(const QString &old, const QString &master)
{
    auto checking = old.isEmpty() ? std::nullopt : m_desk.keeper.checking(old, KeySlots::Password);
    const auto first = checking ? std::make_shared<KeeperOpening>(std::move(*checking)) : nullptr;
    const bool isForgotten = old.isEmpty();
    const auto second = std::make_shared<KeyDerivation>(m_desk.keeper.newKey(master));
    m_master->setWorking(true);
    work(
        [first, second] {
            if (first)
                first->run();
            second->run();
        },
        [this, first, second, isForgotten] {
            m_master->setWorking(false);
            if (!isForgotten && (!first || !m_desk.keeper.isRight(*first))) {
                m_master->refuse(KeeperWindowLines::wrongMaster());
                return;
            }
            if (!second->isDone() || !m_desk.keeper.changeMaster(*second)) {
                m_master->refuse(second->isDone() ? KeeperWindowLines::masterNotChanged()
                                                  : KeeperWindowLines::notEnoughMemory());
                return;
            }
            m_master->leave();
            emit said(KeeperWindowLines::masterChanged());
        });
}

void KeeperDoor::makeCode()
{
    if (m_desk.program.dialogs.ask(&m_desk.window, KeeperMessages::newRecoveryCode()) != Answer::Yes)
        return;
    const QString code = RecoveryCode::generate();
    const auto derived = std::make_shared<KeyDerivation>(m_desk.keeper.newCodeKey(code));
    work([derived] { derived->run(); },
         [this, derived, code] {
             if (!derived->isDone() || !m_desk.keeper.changeCode(*derived)) {
                 emit said(KeeperWindowLines::codeNotChanged());
                 return;
             }
             noteCode(code);
             showCode(code);
         });
}

/// Until somebody says to have kept it, it is sealed in the file: a lock may take it from the screen.
void KeeperDoor::noteCode(const QString &code)
{
    KeeperSettings settings = m_desk.keeper.settings();
    settings.newCode = code;
    if (!m_desk.keeper.saveSettings(settings))
        emit said(KeeperWindowLines::codeIsShownOnce());
}

void KeeperDoor::showCode(const QString &code)
{
    if (!m_code) {
        m_code = new CodePanel;
        m_desk.views.addPanel(m_code);
        connect(m_code, &CodePanel::said, this, &KeeperDoor::said);
        connect(m_code, &CodePanel::printWanted, this, &KeeperDoor::codePrintWanted);
        connect(m_code, &CodePanel::left, this, [this] { noteCode({}); });
    }
    m_desk.window.closePreview();
    m_code->show(code);
    m_desk.views.open(m_code);
    m_code->setFocus();
}
