// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagesheets.h"
#include "shell/core/programstate.h"
#include "shell/pages/pagefont.h"
#include "shell/preview/sheetview.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class ActivityBar;
class ColumnButton;
class PagePainter;
class PageStepper;
class PanelFrame;
class QLabel;
class QMimeData;
class QPushButton;
class QVBoxLayout;
struct Program;

/// The page preview of a function window: the sheet on its desk and the column of buttons beside it. The page
/// is built again by `builder` after each change of font, orientation or data.
class PreviewPane final : public QWidget
{
    Q_OBJECT
public:
    using Builder = std::function<Page(const PageSetup &)>;
    using SheetsBuilder = std::function<PageSheets(const PageSetup &)>;
    /// How the sheet lies at first: as the user has turned it, or on its side.
    enum class Lie { AsTurned, Landscape };

    /// What pages ask for that few should see.
    struct Discretion {
        std::function<void(std::unique_ptr<QMimeData>)> copy{}; ///< puts a page on the clipboard
        std::function<bool()> mayPrint{};                       ///< asked before it is printed
        std::function<bool()> mayWriteFile{};                   ///< asked before a PDF is made of it
        std::function<void()> printed{};                        ///< told when it was
    };

    PreviewPane(Program &program, ActivityBar &activity, QWidget *parent = nullptr);
    ~PreviewPane() override;

    /// How pages are laid out where nobody has chosen anything.
    static PageSetup usualSetup(DateStyle style);
    static PageFont usualFont();
    /// What the clipboard gets of a sheet: its picture, and its words.
    static std::unique_ptr<QMimeData> copied(const PagePainter &page, int sheet);

    void setDiscretion(Discretion discretion);
    /// The sheet, upright, of what is shown from now on.
    void setPaper(QSizeF paper) { m_setup.paper = paper; }
    /// What is shown from now on lies as it says itself, and not as others were turned: `turned` is told when
    /// the person turns it, before it is built again.
    void setOwnOrientation(PageSetup::Orientation orientation,
                           std::function<void(PageSetup::Orientation)> turned);
    /// What is shown from now on has a font of its own: `chosen` is told when the person chooses another,
    /// before it is built again.
    void setOwnFont(const PageFont &font, std::function<void(const PageFont &)> chosen);
    /// Puts a choice of what the page shows below its number.
    void addChoice(QWidget *choice);

    using QWidget::show;
    /// Takes a new content and shows its first sheet. `jobName` is the proposed name of a PDF. The pane
    /// itself is made visible by its window.
    void show(Builder builder, const QString &jobName, Lie lie = Lie::AsTurned);
    /// The same for more than should be built at once.
    void showSheets(SheetsBuilder builder, const QString &jobName);
    void rebuild();

    /// Prints what the builder gives: the platform's print dialog, or a PDF where there is no printer. Says
    /// in the status bar how it went; false when cancelled or failed.
    bool print();

    void setDeskColor(const QColor &color); ///< invalid: as designed
    /// The panels around desk and buttons, for the window's panel colours.
    QList<QWidget *> panels() const;

    int sheetCount() const;
    int currentSheet() const;
    const PageSetup &setup() const { return m_setup; }

signals:
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// The indices of the button array.
    enum Command { ChooseFont, TurnPage, ToggleButtons, CopyPage, Print, CommandCount };

    void makeCommands();
    void fillButtonPanel();
    void connectControls();
    void run(Command command);
    void chooseFont();
    void turnPage();
    void toggleButtons();
    void copyPage();
    void toggleZoom();
    void start(const QString &jobName, Lie lie);
    void showSheet(int sheet, SheetView::Edge edge = SheetView::Edge::Top);
    void showOrientation();
    void showFont();
    PagePainter paginated(const PageSetup &setup) const;

    Program &m_program;
    ActivityBar &m_activity;
    std::function<PagePainter(const PageSetup &)> m_lay; ///< lays the content out
    QString m_jobName;
    PageSetup m_setup;
    Lie m_lie = Lie::AsTurned;
    PageSetup::Orientation m_turned = PageSetup::Portrait; ///< of the pages that lie as they are turned
    std::optional<PageSetup::Orientation> m_own;           ///< of those that say it themselves
    std::function<void(PageSetup::Orientation)> m_ownTurned;
    PageFont m_font;
    std::function<void(const PageFont &)> m_fontChosen; ///< of pages with a font of their own
    std::shared_ptr<PagePainter> m_painter;
    bool m_isBuilding = false;
    Discretion m_discretion;

    PanelFrame *m_deskPanel;
    SheetView *m_view;
    PanelFrame *m_buttonPanel;
    QVBoxLayout *m_column = nullptr;
    QPushButton *m_showButtons;
    std::array<QPushButton *, CommandCount> m_commands{};
    ColumnButton *m_zoom = nullptr;
    QPushButton *m_close = nullptr;
    PageStepper *m_steps = nullptr;
    QLabel *m_orientation = nullptr;
    QLabel *m_fontSample = nullptr;
};
