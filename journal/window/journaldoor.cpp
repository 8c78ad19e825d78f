// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journaldoor.h"

#include "journal/model/journal.h"
#include "journal/model/journalfiles.h"
#include "journal/model/messages.h"
#include "journal/window/daypage.h"
#include "journal/window/seallines.h"
#include "journal/window/windowlines.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/unlockview.h"
#include "shell/core/passwordlines.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QDir>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

UnlockView::Words unlockWords()
{
    return {.icon = "journal"_L1,
            .title = SealLines::isLocked(),
            .sentence = SealLines::lockedWords(),
            .caption = SealLines::passwordCaption(),
            .usePassword = SealLines::usePassword(),
            .missing = SealLines::passwordMissing(),
            .trying = SealLines::opening()};
}

WrongAnswers counted(const KeySlots::WrongAnswers &wrong)
{
    return {int(wrong.count), wrong.first.toLocalTime(), wrong.last.toLocalTime()};
}

} // namespace

JournalDoor::JournalDoor(const JournalDesk &desk, std::chrono::milliseconds step, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_step(new ThreadedStep(this))
    , m_attempts(m_memory, step)
{}

JournalDoor::~JournalDoor() = default;

JournalSeal &JournalDoor::seal() const
{
    return m_desk.journal.seal();
}

bool JournalDoor::show()
{
    switch (seal().state()) {
    case JournalSeal::State::Locked:
        ask();
        return true;
    case JournalSeal::State::NoKey:
        showTrouble(false);
        return true;
    case JournalSeal::State::Newer:
        showTrouble(true);
        return true;
    default:
        return false;
    }
}

void JournalDoor::ask()
{
    if (!m_unlock)
        makeUnlockView();
    m_desk.views.setHome(m_unlock);
    m_desk.views.goHome();
    m_unlock->start();
    m_attempts.resume(counted(seal().wrongAnswers()), m_desk.program.clock.now());
    if (seal().isKeyFileLost())
        emit said(SealLines::keyFileLost(JournalSeal::keyFile));
}

void JournalDoor::makeUnlockView()
{
    m_unlock = new UnlockView(unlockWords(), {u"journalPassword"_s, u"openJournal"_s});
    m_desk.views.addHome(m_unlock);
    connect(m_unlock, &UnlockView::answered, this, &JournalDoor::answer);
    const auto wrong = [this] {
        return m_unlock->isForCode() ? SealLines::wrongCode() : SealLines::wrongPassword();
    };
    connect(&m_attempts, &Attempts::waiting, this, [this, wrong](int seconds) {
        m_unlock->refuse(wrong() + u' ' + SealLines::tryAgainIn(seconds), true);
    });
    connect(&m_attempts, &Attempts::waited, this, [this, wrong] { m_unlock->refuse(wrong()); });
    connect(&m_attempts, &Attempts::spent, this,
            [this] { m_unlock->refuse(SealLines::answersSpent(), true); });
}

/// Nothing is written while the files are like this.
void JournalDoor::showTrouble(bool isLater)
{
    const QString folder = QDir::toNativeSeparators(m_desk.program.folder.path());
    const QString sentence = isLater ? SealLines::later() : SealLines::nobodyCanOpen();
    const QString words =
        isLater ? SealLines::laterWords() : SealLines::nobodyCanOpenWords(JournalSeal::keyFile, folder);
    if (m_trouble)
        m_trouble->deleteLater();
    auto *page = named(new EmptyPage("journal"_L1, sentence, words), u"journalTrouble"_s);
    m_trouble = page;
    if (!isLater) {
        QPushButton *aside = makeButton(u"setAside"_s, u"Set &Aside..."_s, page, ButtonKind::Main);
        setUnavailable(aside, m_desk.program.folder.whyReadOnly());
        connect(aside, &QPushButton::clicked, this, &JournalDoor::setYearsAside);
        page->addButton(aside);
    }
    m_desk.views.addHome(page);
    m_desk.views.setHome(page);
    m_desk.views.goHome();
    page->setFocus();
}

/// The sealed years get other names; those that are plain show again.
void JournalDoor::setYearsAside()
{
    QList<int> years = m_desk.journal.years();
    years.removeIf([this](int year) { return !JournalFiles::isSealed(m_desk.program.folder, year); });
    QStringList names;
    for (const int year : std::as_const(years))
        names.append(JournalFiles::name(year));
    if (m_desk.program.dialogs.ask(&m_desk.window, JournalMessages::setSealedAside(names)) != Answer::Yes)
        return;
    bool isDone = true;
    for (const int year : std::as_const(years))
        isDone = !m_desk.journal.setAside(year).isEmpty() && isDone;
    if (!show())
        emit cleared();
    if (!isDone)
        emit said(JournalWindowLines::notSetAside());
}

void JournalDoor::answer(const QString &text)
{
    const bool isByCode = m_unlock->isForCode();
    auto opening = seal().opening(text, isByCode ? KeySlots::Recovery : KeySlots::Password);
    if (!opening) {
        m_unlock->refuse(isByCode ? PasswordLines::recoveryCodeSlip() : SealLines::wrongPassword());
        if (seal().state() != JournalSeal::State::Locked && !show())
            emit cleared();
        return;
    }
    m_unlock->setTrying(true);
    m_desk.setBusy(true);
    m_isLockDue = false;
    const auto shared = std::make_shared<JournalOpening>(std::move(*opening));
    m_step->start([shared] { shared->run(); },
                  [this, shared, isByCode] {
                      m_desk.setBusy(false);
                      m_unlock->setTrying(false);
                      judge(std::move(*shared), isByCode);
                      if (std::exchange(m_isLockDue, false))
                          emit lockDue();
                  });
}

void JournalDoor::lockBehind()
{
    m_isLockDue = m_step->isRunning();
}

void JournalDoor::judge(JournalOpening opening, bool isByCode)
{
    if (!opening.isJudged()) {
        m_unlock->refuse(SealLines::notEnoughMemory());
        return;
    }
    const WrongAnswers before = counted(seal().wrongAnswers());
    if (!seal().unlock(std::move(opening))) {
        m_attempts.addWrong(counted(seal().wrongAnswers()));
        return;
    }
    m_attempts.reset();
    m_unlock->start();
    emit opened(before.words(m_desk.program.state.dateStyle, m_desk.program.clock.today()), isByCode);
}
