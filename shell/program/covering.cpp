// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/covering.h"

#include "shell/program/windowcover.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QToolTip>

#include <utility>

namespace {

/// What screen readers get of a covered window: its title and its cover.
class CoveredWindow final : public QAccessibleWidget
{
public:
    explicit CoveredWindow(QWidget *window)
        : QAccessibleWidget(window, QAccessible::Window)
    {}

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(WindowCover::over(*widget())) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == WindowCover::over(*widget()) ? 0 : -1;
    }
    QAccessibleInterface *focusChild() const override { return child(0) ? child(0)->focusChild() : nullptr; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? widget()->windowTitle() : QString();
    }
};

/// What they get of a widget behind the cover, should one have it in mind still.
class HiddenPart final : public QAccessibleWidget
{
public:
    explicit HiddenPart(QWidget *part)
        : QAccessibleWidget(part, QAccessible::NoRole)
    {}

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    QString text(QAccessible::Text /*kind*/) const override { return {}; }
    void *interface_cast(QAccessible::InterfaceType /*type*/) override { return nullptr; }
    QAccessible::State state() const override
    {
        QAccessible::State hidden;
        hidden.invisible = true;
        return hidden;
    }
};

QAccessibleInterface *interfaceWhileCovered(const QString & /*className*/, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    const WindowCover *cover = widget ? WindowCover::over(*widget->window()) : nullptr;
    if (!cover || widget == cover || cover->isAncestorOf(widget))
        return nullptr;
    if (widget->isWindow())
        return new CoveredWindow(widget);
    return new HiddenPart(widget);
}

/// What was known of the window's widgets is made anew when it is next asked for.
void forgetInterfaces(QWidget &window)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(interfaceWhileCovered);
        return true;
    }();
    Q_UNUSED(isInstalled);
    QList<QWidget *> widgets = window.findChildren<QWidget *>();
    widgets.append(&window);
    for (QWidget *widget : std::as_const(widgets)) {
        if (widget->window() != &window)
            continue;
        if (QAccessibleInterface *known = QAccessible::queryAccessibleInterface(widget))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    }
}

} // namespace

void Covering::cover(QWidget &window, std::function<void()> unlock)
{
    if (isCovered(window))
        return;
    QToolTip::hideText();
    forgetInterfaces(window);
    auto *cover = new WindowCover(window, std::move(unlock));
    if (cover->isVisible())
        cover->repaint(); // before the computer falls asleep
}

void Covering::uncover(QWidget &window)
{
    WindowCover *cover = WindowCover::over(window);
    if (!cover)
        return;
    QWidget *focus = cover->lift();
    forgetInterfaces(window);
    if (focus)
        focus->setFocus();
    // It looks whether its files have changed, as when somebody comes back to it.
    QEvent back(QEvent::ActivationChange);
    QCoreApplication::sendEvent(&window, &back);
}

bool Covering::isCovered(const QWidget &widget)
{
    return WindowCover::over(*widget.window()) != nullptr;
}
