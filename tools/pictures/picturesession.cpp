// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/picturesession.h"

#include "app/functions.h"
#include "shell/access/passwordprompt.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "shell/manual/helpviewer.h"
#include "shell/preview/sheetview.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int quietMilliseconds = 250; ///< longer than any window waits before it follows what is typed
constexpr int longestMilliseconds = 10'000;
constexpr QSize pageWindow(1280, 1240); ///< high enough for a sheet larger than its picture
constexpr int pageDotsPerInch = 75;
constexpr double lettersHeight = 11;

/// Tells how long ago anything was painted.
class PaintWatch final : public QObject
{
public:
    PaintWatch()
    {
        m_quiet.start();
        qApp->installEventFilter(this);
    }
    qint64 quiet() const { return m_quiet.elapsed(); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest)
            m_quiet.restart();
        return false;
    }

private:
    QElapsedTimer m_quiet;
};

/// The windows that stand before `window`: boxes, then menus and lists.
QList<QWidget *> before(const QWidget *window)
{
    QList<QWidget *> boxes, popups;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible() || widget == window)
            continue;
        if (widget->windowType() == Qt::Popup)
            popups.append(widget);
        else if (widget->isModal())
            boxes.append(widget);
    }
    return boxes + popups;
}

} // namespace

PictureSession::PictureSession(const Camera &camera)
    : m_camera(camera)
    , m_programFolder(QStringLiteral(QUILLERY_PROGRAM))
    , m_program{m_test.folder,    m_programFolder, m_test.settings, m_test.state,   m_test.clock, m_dialogs,
                m_test.functions, m_test.gate,     m_test.store,    m_test.changes, m_test.idle}
{
    m_test.gate = AccessGate(showPasswordPrompt);
    addFunctions(m_test.functions, m_test.clock);
    QObject::connect(&m_test.changes, &ProgramSignals::helpRequested, &m_test.changes, [this](int context) {
        m_manual = std::make_unique<HelpViewer>(m_program);
        m_manual->openPage(context);
        bringToFront(*m_manual);
    });
    QObject::connect(&m_unexpected, &QTimer::timeout, &m_unexpected, [this] {
        if (const QWidget *box = QApplication::activeModalWidget())
            fail(qPrintable(box->windowTitle()));
    });
    m_unexpected.start(1000);
    takeHousehold();
}

/// The household in the designed colours, on the whole screen, with the program's own pictures.
void PictureSession::takeHousehold()
{
    for (const QString &pattern : {u"GColor1.Fil"_s, u"GColor2.Fil"_s, u"GColor3.Fil"_s, u"WP*.jpg"_s}) {
        QDir data(m_test.folder.path());
        for (const QString &name : data.entryList({pattern}, QDir::Files))
            data.remove(name);
    }
    if (!m_test.settings.setTagged(SettingsKeys::background, u"WP1"_s))
        fail("GHINV1.Fil");
    m_test.state.familyName = FamilyName(m_test.settings.text(SettingsKeys::familyName));
}

PictureSession::~PictureSession()
{
    // Without the questions that closing would ask.
    const QList<QWidget *> left = QApplication::topLevelWidgets();
    m_mainMenu.reset();
    m_manual.reset();
    for (QWidget *window : m_test.functions.openWindows())
        delete window;
    QDir::setCurrent(QDir::rootPath());
}

QWidget &PictureSession::place() const
{
    QWidget *box = QApplication::activeModalWidget();
    return box ? *box : *m_window;
}

void PictureSession::show(QWidget &window)
{
    m_window = &window;
    bringToFront(window);
    settle();
}

void PictureSession::openMainMenu()
{
    if (!m_mainMenu) {
        const Surroundings desktop{[](const QUrl &) {},
                                   [] { return QLocale(QLocale::English, QLocale::UnitedStates); },
                                   [this](const QWidget &) { return desk().screen; }};
        m_mainMenu = std::make_unique<Startfrm>(m_program, desktop);
    }
    show(*m_mainMenu);
}

void PictureSession::open(Function function)
{
    show(*m_test.functions.open(function, m_program));
}

void PictureSession::use(const char *window)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String(window)) {
            m_window = widget;
            return;
        }
    }
    fail(window);
}

void PictureSession::close()
{
    m_window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_mainMenu)
        m_window = m_mainMenu.get();
}

void PictureSession::click(const char *button)
{
    auto &found = find<QAbstractButton>(button);
    if (!found.isEnabled())
        fail(button);
    // Marks and options are as wide as their column; they take a click on their sign.
    const bool isMark = found.isCheckable();
    QTest::mouseClick(&found, Qt::LeftButton, {}, isMark ? QPoint(10, found.height() / 2) : QPoint());
    QCoreApplication::processEvents();
}

void PictureSession::trigger(const char *action)
{
    auto &found = find<QAction>(action);
    if (!found.isEnabled())
        fail(action);
    found.trigger();
    QCoreApplication::processEvents();
}

void PictureSession::clickRow(const char *view, int row, int column)
{
    auto &found = find<QAbstractItemView>(view);
    const QModelIndex index = found.model()->index(row, column, found.rootIndex());
    found.scrollTo(index);
    QTest::mouseClick(found.viewport(), Qt::LeftButton, {}, found.visualRect(index).center());
    QCoreApplication::processEvents();
}

void PictureSession::focus(const char *control)
{
    find<QWidget>(control).setFocus(Qt::TabFocusReason);
}

void PictureSession::type(const QString &text)
{
    for (const QChar character : text) {
        if (character == u'\n') {
            key(Qt::Key_Return);
            continue;
        }
        QWidget *box = QApplication::focusWidget();
        if (!box)
            fail("focus");
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

void PictureSession::fill(const char *box, const QString &text)
{
    focus(box);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    type(text);
}

void PictureSession::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget *receiver = QApplication::activePopupWidget();
    if (!receiver)
        receiver = QApplication::focusWidget();
    QTest::keyClick(receiver ? receiver : &place(), key, modifiers);
    QCoreApplication::processEvents();
}

void PictureSession::box(const std::function<void()> &opens, const std::function<void()> &inBox)
{
    bool isThere = false, isDone = false;
    m_unexpected.stop();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        const QPointer<QDialog> box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || (isThere && !isDone))
            return;
        if (!std::exchange(isThere, true)) {
            settle();
            inBox();
            isDone = true;
        }
        // Whatever the program asks after it is cancelled as well.
        if (box && box->isVisible())
            box->done(QDialog::Rejected);
    });
    watch.start(20);
    opens();
    if (!QTest::qWaitFor([&] { return isDone; }, longestMilliseconds))
        fail("a box");
    m_unexpected.start();
}

/// Until nothing has been painted for a while: pictures are read and searches follow the typing in the
/// background.
void PictureSession::settle() const
{
    const PaintWatch watch;
    QElapsedTimer all;
    all.start();
    while (watch.quiet() < quietMilliseconds && !all.hasExpired(longestMilliseconds))
        QTest::qWait(10);
}

void PictureSession::take(const char *name)
{
    settle();
    takeAtOnce(name);
}

void PictureSession::takeAtOnce(const char *name)
{
    QPixmap picture = m_window->grab();
    QPainter painter(&picture);
    painter.setPen(Theme::of(m_window).edge);
    for (QWidget *box : before(m_window)) {
        const QRect shown = box->geometry().translated(-m_window->geometry().topLeft());
        painter.drawPixmap(shown.topLeft(), box->grab());
        if (box->isModal())
            painter.drawRect(shown.adjusted(-1, -1, 0, 0)); // in place of the desktop's frame
    }
    painter.end();
    keep(name, picture.toImage());
}

void PictureSession::takeWidget(const char *name, QWidget &widget)
{
    settle();
    keep(name, widget.grab().toImage());
}

void PictureSession::takePage(const char *name, const char *view)
{
    if (!desk().takesPages)
        return;
    const QSize size = m_window->size();
    m_window->resize(pageWindow);
    settle();
    auto &sheets = find<SheetView>(view);
    const QImage sheet = sheets.viewport()->grab(sheets.sheetRect().toRect()).toImage();
    const double height = std::min<double>(sheet.height(), lettersHeight * pageDotsPerInch);
    keep(name, sheet.scaledToHeight(int(height), Qt::SmoothTransformation));
    m_window->resize(size);
}

void PictureSession::keep(const char *name, const QImage &picture) const
{
    const QStringList &wanted = m_camera.wanted;
    const QString file = QString::fromLatin1(name) + desk().suffix();
    if (!wanted.isEmpty() && !wanted.contains(m_camera.album) &&
        !wanted.contains(QString::fromLatin1(name)) && !wanted.contains(file))
        return;
    constexpr int smallest = 0; // of the qualities of a PNG file, all of which look the same
    if (!picture.convertToFormat(QImage::Format_RGB888)
             .save(m_camera.folder + u'/' + file + u".png"_s, "PNG", smallest))
        fail(name);
}

void PictureSession::fail(const char *missing) const
{
    const QString window = m_window ? m_window->objectName() : u"no window"_s;
    std::fprintf(stderr, "pictures: %s, %s%s: \"%s\" cannot be found, used or kept\n",
                 qPrintable(m_camera.album), qPrintable(window), qPrintable(desk().suffix()), missing);
    std::_Exit(EXIT_FAILURE);
}
