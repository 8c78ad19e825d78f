// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagepainter.h"

#include <functional>
#include <utility>
#include <vector>

class ActivityBar;
class QPagedPaintDevice;
class QPrinter;
class QWidget;
struct Program;

/// Takes a page to paper through the platform's print dialog, or into a PDF where there is no printer. Says
/// in the status bar how it went; a failure never opens a box.
class PrintJob
{
public:
    /// Lays the page out for another paper or orientation, chosen in the print dialog.
    using Relayout = std::function<PagePainter(const PageSetup &)>;

    /// `name` is the document's name and the proposed name of the PDF.
    PrintJob(Program &program, ActivityBar &activity, QWidget *parent, QString name);

    /// Asked before the page becomes a file that anybody can read; without it, it always may.
    void setMayWriteFile(std::function<bool()> mayWriteFile) { m_mayWriteFile = std::move(mayWriteFile); }

    /// Asked after each box and each sheet: false ends the job, as covering its window does.
    void setMayGoOn(std::function<bool()> mayGoOn) { m_mayGoOn = std::move(mayGoOn); }

    /// `currentSheet` is what "current page" means in the dialog. False when cancelled, stopped or failed.
    bool run(const PagePainter &painter, const PageSetup &setup, int currentSheet, const Relayout &relayout);
    /// Asks where to, and writes a PDF, whether there is a printer or not.
    bool toFile(const PagePainter &painter);

private:
    enum class Outcome { Done, Stopped, Failed };

    bool toPrinter(const PagePainter &painter, const PageSetup &setup, int currentSheet,
                   const Relayout &relayout);
    bool mayGoOn() const;
    Outcome printSheets(const PagePainter &painter, QPagedPaintDevice &device,
                        const std::vector<int> &sheets);

    Program &m_program;
    ActivityBar &m_activity;
    QWidget *m_parent;
    QString m_name;
    std::function<bool()> m_mayWriteFile;
    std::function<bool()> m_mayGoOn;
};
