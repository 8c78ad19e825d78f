// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalsealer.h"

#include "journal/model/journal.h"
#include "journal/model/sealingwalk.h"
#include "journal/window/journalcodepanel.h"
#include "journal/window/openday.h"
#include "journal/window/seallines.h"
#include "shell/core/passwordstrength.h"
#include "shell/core/slicedwork.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "shell/writing/writing.h"
#include "storage/sealing/recoverycode.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

/// Of a new seal, or of a new code.
struct JournalSealer::Made {
    Made(std::optional<KeyDerivation> ofPassword, KeyDerivation ofCode, const QString &newCode)
        : password(std::move(ofPassword))
        , codeKey(std::move(ofCode))
        , code(newCode)
    {}
    ~Made() { SecretBytes::wipe(code); }
    Q_DISABLE_COPY_MOVE(Made)

    std::optional<KeyDerivation> password;
    KeyDerivation codeKey;
    QString code;

    void run()
    {
        if (password)
            password->run();
        codeKey.run();
    }
    bool isDone() const { return (!password || password->isDone()) && codeKey.isDone(); }
};

JournalSealer::JournalSealer(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_step(new ThreadedStep(this))
    , m_walking(new SlicedWork(this))
{
    connect(m_walking, &SlicedWork::progressed, this, [this] {
        if (m_walk)
            emit progressed(m_walk->done(), m_walk->count());
    });
}

JournalSealer::~JournalSealer() = default;

JournalSeal &JournalSealer::seal() const
{
    return m_desk.journal.seal();
}

/// Half opened, it can be sealed again.
QString JournalSealer::whyNotPlain() const
{
    if (QString none = m_desk.whyNone(); !none.isEmpty())
        return none;
    if (m_step->isRunning())
        return SealLines::working();
    return seal().isOpen() && !seal().isBeingOpened() ? SealLines::isSealed() : QString();
}

QString JournalSealer::whyNotOpen() const
{
    if (QString none = m_desk.whyNone(); !none.isEmpty())
        return none;
    if (m_step->isRunning())
        return SealLines::working();
    return seal().isOpen() ? QString() : SealLines::isPlain();
}

void JournalSealer::addCommands(QMenu *utilities)
{
    const auto add = [&](const QString &name, const QString &caption, std::function<void()> does,
                         QString (JournalSealer::*why)() const) {
        m_desk.commands.writing(m_desk.commands.add(utilities, name, caption, std::move(does),
                                                    [this, why] { return (this->*why)(); }));
    };
    add(
        u"mUSeal"_s, u"&Seal the Journal..."_s, [this] { openPanel(SealPanel::Seal); },
        &JournalSealer::whyNotPlain);
    add(
        u"mUOpenSeal"_s, u"&Open the Seal..."_s, [this] { openPanel(SealPanel::OpenSeal); },
        &JournalSealer::whyNotOpen);
    add(
        u"mUPassword"_s, u"Change Journal &Password..."_s, [this] { openPanel(SealPanel::Change); },
        &JournalSealer::whyNotOpen);
    add(
        u"mUCode"_s, u"New Re&covery Code..."_s, [this] { makeCode(); }, &JournalSealer::whyNotOpen);
}

void JournalSealer::goOn(const QString &line, bool isByCode)
{
    m_before = line;
    walk(nullptr);
    if (isByCode)
        openPanel(SealPanel::Forgotten);
}

QString JournalSealer::strengthOf(const QString &typed) const
{
    Writing &writing = m_desk.writing;
    if (!writing.isLoaded())
        writing.load();
    const auto strength = PasswordStrength::of(typed, {.isWord = [&writing](const QString &text) {
                                                   return writing.spelling().isInDictionary(text);
                                               }});
    return SealLines::strength(strength);
}

void JournalSealer::openPanel(SealPanel::Kind kind)
{
    if (!m_desk.day.save())
        return;
    if (kind == SealPanel::Seal && seal().isOpen()) { // half opened: its password stays
        if (seal().setBeingOpened(false))
            walk([this] { return sealedWords(); });
        else
            emit said(SealLines::notChanged());
        return;
    }
    if (!m_panel) {
        m_panel = new SealPanel([this](const QString &typed) { return strengthOf(typed); });
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &SealPanel::chosen, this, &JournalSealer::chosen);
    }
    m_kind = kind;
    m_desk.window.closePreview();
    m_desk.views.open(m_panel);
    m_panel->start(kind, kind == SealPanel::Seal ? SealingWalk::leftUnsealed(m_desk.program.folder)
                                                 : QStringList());
    m_panel->setFocus();
}

void JournalSealer::chosen(const QString &old, const QString &password)
{
    switch (m_kind) {
    case SealPanel::Seal:
        makeSeal(password);
        return;
    case SealPanel::OpenSeal:
        openSeal(old);
        return;
    case SealPanel::Change:
    case SealPanel::Forgotten:
        changePassword(old, password);
        return;
    }
}

void JournalSealer::work(const std::function<void()> &slow, const std::function<void()> &then)
{
    m_desk.setBusy(true);
    m_step->start(slow, [this, then] {
        m_desk.setBusy(false);
        then();
        m_desk.commands.refresh();
    });
    m_desk.commands.refresh();
}

/// The keys are made, and nothing is sealed before the code was typed in.
void JournalSealer::makeSeal(const QString &password)
{
    const QString code = RecoveryCode::generate();
    const auto made = std::make_shared<Made>(seal().newKey(password), seal().newCodeKey(code), code);
    m_panel->setWorking(true);
    work([made] { made->run(); },
         [this, made] {
             m_panel->setWorking(false);
             if (!made->isDone()) {
                 m_panel->refuse(SealLines::notEnoughMemory());
                 return;
             }
             m_panel->leave();
             askForCode(made);
         });
}

void JournalSealer::makeCode()
{
    const QString code = RecoveryCode::generate();
    const auto made = std::make_shared<Made>(std::nullopt, seal().newCodeKey(code), code);
    emit said(SealLines::working());
    work([made] { made->run(); },
         [this, made] {
             if (!made->isDone())
                 emit said(SealLines::notEnoughMemory());
             else if (seal().isOpen()) // and not locked meanwhile
                 askForCode(made);
         });
}

void JournalSealer::askForCode(const MadeKeys &made)
{
    if (!m_code) {
        m_code = new JournalCodePanel;
        m_desk.views.addPanel(m_code);
        connect(m_code, &JournalCodePanel::printWanted, this, &JournalSealer::codePrintWanted);
        connect(m_code, &JournalCodePanel::kept, this, &JournalSealer::useCode);
        connect(m_code, &TaskPanel::left, this, [this] {
            if (std::exchange(m_made, nullptr))
                emit said(SealLines::nothingChanged());
            emit codeLeft();
        });
    }
    m_made = made;
    m_desk.window.closePreview();
    m_code->show(made->code);
    m_desk.views.open(m_code);
    m_code->setFocus();
}

void JournalSealer::useCode()
{
    const MadeKeys made = std::exchange(m_made, nullptr);
    m_code->leave();
    if (!made || !m_desk.day.save())
        return;
    if (made->password) {
        if (seal().create(*made->password, made->codeKey)) {
            m_desk.program.functions.forgetSearch(Function::Journal);
            walk([this] { return sealedWords(); });
        } else {
            emit said(SealLines::notSealed());
        }
    } else if (seal().changeCode(made->codeKey)) {
        walk(&SealLines::codeMade);
    } else {
        emit said(SealLines::notChanged());
    }
}

void JournalSealer::openSeal(const QString &password)
{
    auto opening = seal().opening(password, KeySlots::Password);
    if (!opening) {
        m_panel->refuse(SealLines::wrongPassword());
        return;
    }
    m_panel->setWorking(true);
    const auto shared = std::make_shared<JournalOpening>(std::move(*opening));
    work([shared] { shared->run(); },
         [this, shared] {
             m_panel->setWorking(false);
             if (!shared->isJudged() || !seal().isRight(*shared)) {
                 m_panel->refuse(shared->isJudged() ? SealLines::wrongPassword()
                                                    : SealLines::notEnoughMemory());
                 return;
             }
             m_panel->leave();
             if (seal().setBeingOpened(true))
                 walk([this] { return openedWords(); });
             else
                 emit said(SealLines::notChanged());
         });
}

/// Both are derived in one go, the old one first: a wrong one is heard of as soon as a right one would be.
void JournalSealer::changePassword(const QString &old, const QString &password)
{
    const bool isForgotten = m_kind == SealPanel::Forgotten;
    auto checking = isForgotten ? std::nullopt : seal().opening(old, KeySlots::Password);
    const auto first = checking ? std::make_shared<JournalOpening>(std::move(*checking)) : nullptr;
    const auto second = std::make_shared<KeyDerivation>(seal().newKey(password));
    m_panel->setWorking(true);
    work(
        [first, second] {
            if (first)
                first->run();
            second->run();
        },
        [this, first, second, isForgotten] {
            m_panel->setWorking(false);
            const bool isJudged = second->isDone() && (!first || first->isJudged());
            if (isJudged && !isForgotten && (!first || !seal().isRight(*first))) {
                m_panel->refuse(SealLines::wrongPassword());
                return;
            }
            if (!isJudged || !seal().changePassword(*second)) {
                m_panel->refuse(isJudged ? SealLines::notChanged() : SealLines::notEnoughMemory());
                return;
            }
            m_panel->leave();
            walk(&SealLines::passwordChanged);
        });
}

QString JournalSealer::sealedWords() const
{
    return SealLines::sealed(SealingWalk::leftUnsealed(m_desk.program.folder));
}

QString JournalSealer::openedWords() const
{
    return SealLines::sealOpened(SealingWalk::leftSealed(m_desk.program.folder));
}

/// Brings the years to what was decided. Without words for its end, it finishes one that was cut short, if
/// any.
void JournalSealer::walk(const Words &done)
{
    Words words = done;
    if (seal().isBeingOpened())
        words = [this] { return openedWords(); };
    m_walk = std::make_unique<SealingWalk>(seal());
    disconnect(m_walking, &SlicedWork::finished, this, nullptr);
    if (m_walk->count() == 0) {
        endWalk(words);
        return;
    }
    m_desk.setBusy(true);
    if (!words)
        words = [this] { return sealedWords(); };
    connect(m_walking, &SlicedWork::finished, this, [this, words] { endWalk(words); });
    m_walking->start([this] { return m_walk && m_walk->step(); });
}

void JournalSealer::endWalk(const Words &done)
{
    m_desk.setBusy(false);
    emit progressed(0, 0);
    const auto walk = std::exchange(m_walk, nullptr);
    const QString before = std::exchange(m_before, {});
    if (!walk)
        return;
    emit walked();
    QStringList lines;
    if (!walk->refused().isEmpty())
        lines.append(SealLines::walkRefused(SealLines::namesOf(walk->refused())));
    if (!walk->heldBack().isEmpty())
        lines.append(SealLines::heldBack(walk->heldBack()));
    if (lines.isEmpty() && !walk->isComplete())
        lines.append(SealLines::walkRefused({JournalSeal::keyFile}));
    if (lines.isEmpty() && done)
        lines.append(done());
    if (!lines.isEmpty())
        emit said(SealLines::together(QStringList(before) + lines));
    m_desk.commands.refresh();
}

void JournalSealer::forget()
{
    m_made.reset();
    m_walk.reset();
    m_before.clear();
    if (m_code)
        m_code->forget();
    if (m_panel)
        m_panel->forget();
}
