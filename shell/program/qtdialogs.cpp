// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/qtdialogs.h"

#include "shell/program/fontbox.h"
#include "shell/program/functions.h"
#include "shell/program/messagebox.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace {

/// What goes on around a modal box: an hourglass gives way to the arrow, and afterwards the window of
/// `parent` is the active one again. Without a window manager, and with some, no window would be.
class AroundModalBox
{
public:
    explicit AroundModalBox(QWidget *parent)
        : m_window(parent ? parent->window() : QApplication::activeWindow())
        , m_wasBusy(QApplication::overrideCursor())
    {
        if (m_wasBusy)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
        // Who is asked shall see what about.
        if (m_window && m_window->isVisible() && !m_window->isActiveWindow())
            bringToFront(*m_window);
    }
    ~AroundModalBox()
    {
        if (m_wasBusy)
            QApplication::restoreOverrideCursor();
        if (m_window && m_window->isVisible())
            m_window->activateWindow();
    }
    AroundModalBox(const AroundModalBox &) = delete;
    AroundModalBox &operator=(const AroundModalBox &) = delete;

private:
    QPointer<QWidget> m_window;
    bool m_wasBusy;
};

std::optional<QString> unlessEmpty(const QString &path)
{
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

/// A folder that is not there would let the box open in the working folder, among the program's own files.
QString orHome(const QString &folder)
{
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace

Answer QtDialogs::ask(QWidget *parent, const Message &message)
{
    const AroundModalBox around(parent);
    MessageBox box(message, parent);
    box.exec();
    return box.answer();
}

std::optional<QString> QtDialogs::input(QWidget *parent, const QString &title, const QString &prompt,
                                        const QString &preset)
{
    const AroundModalBox around(parent);
    InputBox box(title, prompt, preset, parent);
    return box.exec() == QDialog::Accepted ? std::optional(box.text()) : std::nullopt;
}

std::optional<QColor> QtDialogs::chooseColor(QWidget *parent, const QColor &preset)
{
    const AroundModalBox around(parent);
    const QColor color = QColorDialog::getColor(preset, parent);
    return color.isValid() ? std::optional(color) : std::nullopt;
}

std::optional<PageFont> QtDialogs::chooseFont(QWidget *parent, const PageFont &preset)
{
    const AroundModalBox around(parent);
    FontBox box(*this, preset, parent);
    return box.exec() == QDialog::Accepted ? std::optional(box.chosen()) : std::nullopt;
}

std::optional<QString> QtDialogs::chooseFileToSave(QWidget *parent, const QString &title,
                                                   const QString &preset, const QString &filter)
{
    const AroundModalBox around(parent);
    const QFileInfo proposed(preset);
    const QString start = QDir(orHome(proposed.path())).filePath(proposed.fileName());
    return unlessEmpty(QFileDialog::getSaveFileName(parent, title, start, filter));
}

std::optional<QString> QtDialogs::chooseFileToOpen(QWidget *parent, const QString &title,
                                                   const QString &folder, const QString &filter)
{
    const AroundModalBox around(parent);
    // Without one it would open where another function was last.
    const QString start =
        folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : folder;
    return unlessEmpty(QFileDialog::getOpenFileName(parent, title, orHome(start), filter));
}

std::optional<QString> QtDialogs::chooseFolder(QWidget *parent, const QString &title, const QString &preset)
{
    const AroundModalBox around(parent);
    return unlessEmpty(QFileDialog::getExistingDirectory(parent, title, preset));
}

bool QtDialogs::choosePrinter(QWidget *parent, QPrinter &printer)
{
    const AroundModalBox around(parent);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    return dialog.exec() == QDialog::Accepted;
}

bool QtDialogs::hasPrinter() const
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

int QtDialogs::run(QDialog &dialog)
{
    const AroundModalBox around(dialog.parentWidget());
    return dialog.exec();
}
