#pragma once

#include "shell/dialogs.h"
#include "shell/page.h"

#include <QWidget>

#include <functional>
#include <memory>

class ActivityBar;
class PagePainter;
class QLabel;
class QPushButton;
class SheetView;
struct Program;

/// The page preview of a function window: the sheet on its desk and the column of buttons beside it. The page is built
/// again by `builder` after each change of font, orientation or data.
class PreviewPane final : public QWidget
{
    Q_OBJECT
public:
    using Builder = std::function<Page(const PageSetup &)>;

    PreviewPane(Program &program, ActivityBar &activity, QWidget *parent = nullptr);
    ~PreviewPane() override;

    /// Takes a new content and shows its first sheet. `jobName` is the proposed name of a PDF.
    void show(Builder builder, const QString &jobName);
    void rebuild();

    /// Prints what the builder gives: the platform's print dialog, or a PDF where there is no printer. Says in the
    /// status bar how it went; false when cancelled or failed.
    bool print();

    void setDeskColor(const QColor &color); ///< invalid: as designed
    int sheetCount() const;
    int currentSheet() const;
    const PageSetup &setup() const { return m_setup; }

signals:
    void closed();

private:
    Program &m_program;
    ActivityBar &m_activity;
    Builder m_builder;
    QString m_jobName;
    PageSetup m_setup;
    PageFont m_font;
    std::unique_ptr<PagePainter> m_painter;
    SheetView *m_view;
};
