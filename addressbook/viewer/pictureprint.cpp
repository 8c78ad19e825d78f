// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/pictureprint.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewerpages.h"
#include "shell/controls/activitybar.h"
#include "shell/frame/functionwindow.h"

using namespace Qt::Literals::StringLiterals;

PicturePrint::PicturePrint(Program &program, ActivityBar &activity, FunctionWindow *window)
    : QObject(window)
    , m_activity(activity)
    , m_window(window)
    , m_copies(program.folder)
{
    connect(&m_copies, &PictureCopies::progressed, this,
            [this](int done, int total) { m_activity.showProgress(done, total, true); });
    connect(&m_copies, &PictureCopies::ready, this, &PicturePrint::show);
    connect(&m_activity, &ActivityBar::stopRequested, this, &PicturePrint::stop);
}

void PicturePrint::start(const std::vector<NamedPicture> &pictures)
{
    m_window->closePreview(); // its pictures go with the copies
    if (pictures.empty())
        m_activity.say(ViewerLines::noPictures());
    else
        m_copies.make(pictures);
}

void PicturePrint::show()
{
    m_activity.showProgress(0, 0);
    const auto sheets = [this](const PageContext &context) {
        return ViewerPages::pictureList(m_copies.pictures(), context);
    };
    m_window->showPreview(sheets, u"Family and Friends Pictures"_s);
}

void PicturePrint::stop()
{
    if (!m_copies.isBusy())
        return;
    m_copies.stop();
    m_activity.showProgress(0, 0);
    m_activity.say(ViewerLines::stopped());
}
