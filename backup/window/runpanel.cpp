// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/runpanel.h"

#include "backup/model/backuplines.h"
#include "backup/model/messages.h"
#include "backup/window/diskwork.h"
#include "backup/window/windowlines.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QAccessible>
#include <QDir>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widestBar = 640;

QString words(const DiskProgress &progress)
{
    QString words =
        u"%1 of %2"_s.arg(BackupLines::size(progress.bytes), BackupLines::size(progress.allBytes));
    if (progress.allFiles > 0) // before a sealed set is open, its files are not known
        words =
            u"%1 of %2, "_s.arg(BackupLines::number(progress.files), BackupLines::files(progress.allFiles)) +
            words;
    if (progress.disks > 1)
        words = u"Disk %1 of %2: "_s.arg(progress.disk).arg(progress.disks) + words;
    return words;
}

QString stepWords(const DiskProgress &progress)
{
    switch (progress.step) {
    case DiskProgress::Step::Copying:
        return progress.file;
    case DiskProgress::Step::ReadingBack:
        return u"Reading back "_s + progress.file;
    case DiskProgress::Step::Finishing:
        return u"Finishing"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

RunPanel::RunPanel(const BackupDesk &desk, QWidget *parent)
    : TaskPanel(u"runPanel"_s, {}, parent)
    , m_desk(desk)
    , m_bar(named(new QProgressBar(this), u"runProgress"_s))
    , m_files(named(new QLabel(this), u"runFiles"_s))
    , m_left(named(makeQuietLabel({}, this), u"runLeft"_s))
    , m_file(named(new ElidedLabel(this), u"runFile"_s))
    , m_asked(named(makeHeading({}, this), u"diskAsked"_s))
    , m_advice(named(makeQuietLabel({}, this), u"diskAdvice"_s))
    , m_answers(named(new QWidget(this), u"diskQuestion"_s))
    , m_again(makeButton(u"diskAgain"_s, u"&Go On"_s, m_answers, ButtonKind::Main))
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    m_bar->setAccessibleName(u"Progress"_s);
    m_bar->setMaximumWidth(widestBar);
    m_bar->setRange(0, 100);
    for (QLabel *label : {m_files, m_left, m_asked, m_advice})
        label->setWordWrap(true);
    rows->addWidget(m_bar);
    rows->addWidget(m_files);
    rows->addWidget(m_left);
    rows->addWidget(m_file);
    addQuestion(rows);
    rows->addStretch(1);
    setContent(content);
    setFocusProxy(setLeaveButton(u"runStop"_s, u"S&top"_s));
    connect(&desk.work, &DiskWork::told, this, &RunPanel::follow);
    connect(&desk.work, &DiskWork::asked, this, &RunPanel::followQuestion);
    connect(&desk.work, &DiskWork::answered, this, &RunPanel::followQuestion);
}

void RunPanel::addQuestion(QVBoxLayout *rows)
{
    QPushButton *other = makeButton(u"diskOther"_s, u"Another &Drive..."_s, m_answers);
    auto *buttons = new QHBoxLayout(m_answers);
    buttons->setContentsMargins({});
    buttons->addWidget(m_again);
    buttons->addWidget(other);
    buttons->addStretch(1);
    m_asked->setContentsMargins(0, 16, 0, 0);
    for (QWidget *each : {static_cast<QWidget *>(m_asked), static_cast<QWidget *>(m_advice), m_answers})
        rows->addWidget(each);
    showQuestion({});
    connect(m_again, &QPushButton::clicked, this, &RunPanel::tryAgain);
    connect(other, &QPushButton::clicked, this, &RunPanel::chooseFolder);
}

/// Without a question its lines take no room, and with one those of the work.
void RunPanel::showQuestion(const std::optional<DiskQuestion> &question)
{
    m_asked->setText(question ? BackupWindowLines::question(*question, m_desk.program.state.dateStyle)
                              : QString());
    m_advice->setText(question ? BackupWindowLines::advice(*question) : QString());
    for (QWidget *each : {static_cast<QWidget *>(m_asked), static_cast<QWidget *>(m_advice), m_answers})
        each->setVisible(question.has_value());
    for (QLabel *each : {m_left, m_file})
        each->setVisible(!question); // nothing goes on meanwhile
}

void RunPanel::begin(const QString &title, const QString &doing)
{
    setTitle(title);
    m_doing = doing;
    m_announced = 0;
    showQuestion({});
    m_file->clear();
    m_left->clear();
    m_progress = {};
    m_bar->setValue(0);
    m_files->setText(u"Looking at what is to be done..."_s);
    setWords({});
}

QString RunPanel::line() const
{
    QString line = m_doing;
    if (m_progress.disks > 1)
        line += u", disk %1 of %2"_s.arg(m_progress.disk).arg(m_progress.disks);
    return line + u", %1 %"_s.arg(m_progress.percent());
}

void RunPanel::follow(const DiskProgress &progress)
{
    m_progress = progress;
    m_bar->setValue(progress.percent());
    m_files->setText(words(progress));
    m_left->setText(BackupLines::timeLeft(progress.secondsLeft()));
    m_file->setText(stepWords(progress));
    if (const int tenth = progress.percent() / 10; tenth > m_announced) {
        m_announced = tenth;
        m_bar->setAccessibleDescription(line());
        QAccessibleEvent event(m_bar, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void RunPanel::followQuestion()
{
    const auto &question = m_desk.work.question();
    showQuestion(question);
    if (!question) {
        if (focusProxy())
            focusProxy()->setFocus();
        return;
    }
    m_again->setAccessibleDescription(m_asked->text());
    orderTabs();
    m_again->setFocus();
    QAccessibleEvent alert(m_asked, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RunPanel::tryAgain()
{
    m_desk.work.answer({DiskAnswer::Action::TryAgain, {}});
}

void RunPanel::chooseFolder()
{
    const auto &question = m_desk.work.question();
    const std::optional<QString> folder = m_desk.program.dialogs.chooseFolder(
        this, u"Choose a Drive or Folder"_s, question ? question->folder : QString());
    if (!folder || !m_desk.work.question())
        return;
    if (!QDir(*folder).exists()) {
        m_desk.program.dialogs.ask(this, BackupMessages::folderUnavailable());
        return;
    }
    m_desk.work.answer({DiskAnswer::Action::UseFolder, QDir::cleanPath(*folder)});
}

void RunPanel::leave()
{
    if (!m_desk.work.isRunning()) {
        TaskPanel::leave();
        return;
    }
    emit stopWanted();
}
