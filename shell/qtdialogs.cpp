#include "shell/qtdialogs.h"

#include "shell/fontbox.h"
#include "shell/messagebox.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace {

/// Makes the window of `parent` the active one again when a modal box has gone: without a window manager, and
/// on some with one, no window is active after it.
class ActivateAgain
{
public:
    explicit ActivateAgain(QWidget *parent)
        : m_window(parent ? parent->window() : QApplication::activeWindow())
    {}
    ~ActivateAgain()
    {
        if (m_window && m_window->isVisible())
            m_window->activateWindow();
    }
    ActivateAgain(const ActivateAgain &) = delete;
    ActivateAgain &operator=(const ActivateAgain &) = delete;

private:
    QPointer<QWidget> m_window;
};

std::optional<QString> unlessEmpty(const QString &path)
{
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace

Answer QtDialogs::ask(QWidget *parent, const Message &message)
{
    const ActivateAgain again(parent);
    MessageBox box(message, parent);
    box.exec();
    return box.answer();
}

std::optional<QString> QtDialogs::input(QWidget *parent, const QString &title, const QString &prompt,
                                        const QString &preset)
{
    const ActivateAgain again(parent);
    InputBox box(title, prompt, preset, parent);
    return box.exec() == QDialog::Accepted ? std::optional(box.text()) : std::nullopt;
}

std::optional<QColor> QtDialogs::chooseColor(QWidget *parent, const QColor &preset)
{
    const ActivateAgain again(parent);
    const QColor color = QColorDialog::getColor(preset, parent);
    return color.isValid() ? std::optional(color) : std::nullopt;
}

std::optional<PageFont> QtDialogs::chooseFont(QWidget *parent, const PageFont &preset)
{
    const ActivateAgain again(parent);
    FontBox box(*this, preset, parent);
    return box.exec() == QDialog::Accepted ? std::optional(box.chosen()) : std::nullopt;
}

std::optional<QString> QtDialogs::chooseFileToSave(QWidget *parent, const QString &title,
                                                   const QString &preset, const QString &filter)
{
    const ActivateAgain again(parent);
    return unlessEmpty(QFileDialog::getSaveFileName(parent, title, preset, filter));
}

std::optional<QString> QtDialogs::chooseFolder(QWidget *parent, const QString &title, const QString &preset)
{
    const ActivateAgain again(parent);
    return unlessEmpty(QFileDialog::getExistingDirectory(parent, title, preset));
}

bool QtDialogs::choosePrinter(QWidget *parent, QPrinter &printer)
{
    const ActivateAgain again(parent);
    return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
}

bool QtDialogs::hasPrinter() const
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

int QtDialogs::run(QDialog &dialog)
{
    const ActivateAgain again(dialog.parentWidget());
    return dialog.exec();
}
