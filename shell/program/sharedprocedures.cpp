// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/sharedprocedures.h"

#include "shell/controls/busycursor.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/look/colortext.h"
#include "shell/program/program.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <limits>

namespace {

constexpr int clockStep = 20; // ms

template <std::size_t Count>
void setAll(SettingsChange &change, const SettingsFile &file, const std::array<int, Count> &records,
            const QString &text)
{
    for (const int record : records)
        change.setText({file, record}, text);
}

/// A side of the window in twips, as a record holds it.
int storedTwips(int pixels, int minimum)
{
    const qint64 twips = qint64(pixels) * HINFO1::twipsPerPixel;
    return int(std::clamp<qint64>(twips, minimum, std::numeric_limits<qint16>::max()));
}

} // namespace

void HINFO1::hourglassOn()
{
    Hourglass::on();
}

void HINFO1::hourglassOff()
{
    Hourglass::off();
}

void HINFO1::showColorConflict(Program &program, QWidget *parent)
{
    program.dialogs.ask(parent, ShellMessages::colorConflict());
}

bool HINFO1::askFamilyName(Program &program, QWidget *parent)
{
    const FamilyName stored(program.settings.text(SettingsKeys::familyName));
    hourglassOff();
    const FamilyName given(
        program.dialogs
            .input(parent, ShellMessages::familyNameTitle(), ShellMessages::familyNamePrompt(), stored.text())
            .value_or(QString()));
    FamilyName kept = given;
    if (given.isEmpty() && !stored.isEmpty() &&
        program.dialogs.ask(parent, ShellMessages::deleteFamilyName(stored.text())) != Answer::Yes)
        kept = stored;
    const bool isWritten = program.settings.setText(SettingsKeys::familyName, kept.text());
    program.state.familyName = kept;
    emit program.changes.familyNameChanged();
    return isWritten;
}

void HINFO1::pauseOneSecond(const Program &program)
{
    pauseOneSecond(program, [] { return false; });
}

void HINFO1::pauseOneSecond(const Program &program, const std::function<bool()> &isEnough)
{
    if (isEnough())
        return;
    const int second = program.clock.now().time().second();
    QElapsedTimer waited;
    waited.start();
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        // A clock that stands still, or is set back all the time, must not hold the program up.
        if (program.clock.now().time().second() != second || waited.hasExpired(2000) || isEnough())
            loop.quit();
    });
    timer.start(clockStep);
    loop.exec();
}

bool HINFO1::updateProgramColors(Program &program, QWidget *parent, QString &pending, int answerHolder)
{
    return updateProgramColors(program, parent, pending, answerHolder, SettingsChange(program.settings));
}

bool HINFO1::updateProgramColors(Program &program, QWidget *parent, QString &pending, int answerHolder,
                                 SettingsChange along)
{
    if (answerHolder != updateWithoutAsking &&
        program.dialogs.ask(parent, ShellMessages::updateWholeProgram()) != Answer::Yes)
        pending.clear();
    const QString text = pending.trimmed();
    pending.clear();
    if (text.isEmpty() || text.size() > ColorText::maximumLength)
        return along.commit();
    setAll(along, SettingsKeys::colorFile1, SettingsKeys::programColors1, text);
    setAll(along, SettingsKeys::colorFile2, SettingsKeys::programColors2, text);
    setAll(along, SettingsKeys::colorFile3, SettingsKeys::programColors3, text);
    for (const TextSetting &windowColor : SettingsKeys::windowColors)
        along.setText(windowColor, text);
    const bool isWritten = along.commit();
    emit program.changes.panelColorsChanged(text);
    return isWritten;
}

bool HINFO1::saveMainWindowSize(Program &program, bool maximized, QSize size)
{
    program.state.screenMode = maximized ? ScreenMode::FullScreen : ScreenMode::Smaller;
    SettingsChange change(program.settings);
    change.setText(SettingsKeys::smallerScreen, maximized ? QStringLiteral("No") : QStringLiteral("Yes"));
    if (!maximized) {
        change.setNumber(SettingsKeys::windowHeight, storedTwips(size.height(), minimumTwips.height()));
        change.setNumber(SettingsKeys::windowWidth, storedTwips(size.width(), minimumTwips.width()));
    }
    return change.commit();
}
