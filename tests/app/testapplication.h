#pragma once

#include "app/appdelegate.h"
#include "app/mydocumentcontroller.h"
#include "logbook/carnet.h"
#include "support/queuedfiledialogs.h"
#include "support/testdesktop.h"

namespace tavrel {

/// A document's window with one more window that edits.
struct TestWindow : DocumentWindow {
    using DocumentWindow::DocumentWindow;

    void printDocument() override { ++prints; }
    void previewDocument() override {}
    QString ownMenuTitle() const override { return QStringLiteral("Dive"); }
    QList<QWidget*> furtherWindows() override { return {&further}; }
    std::optional<Entries> askAboutEntries(Settling next) override {
        asked.append(next);
        return entries;
    }
    void settleEntries(Entries entriesSettled) override { settled.append(entriesSettled); }

    QWidget further;
    int prints = 0;
    QList<Settling> asked;
    QList<Entries> settled;
    std::optional<Entries> entries = Entries::none;  ///< the answer about what is being entered
    FileTaken isTaken;                               ///< given when the export is shown
    QStringList takenIn;
};

/// The logbook, exported to one format, and the budget, whose type name is the same in every language.
DocumentTypes testDocumentTypes();

/// The document controller of an application with nothing open.
struct TestApplication : TestDesktop {
    TestApplication() : documents(desktop(), fileDialogs, testDocumentTypes()) {}

    TestWindow* frontWindow() { return static_cast<TestWindow*>(documents.windows().back()); }
    Carnet& frontCarnet() { return static_cast<Carnet&>(frontWindow()->document()); }
    /// A logbook file of the test's folder with that many dives.
    QString savedLogbook(const QString& name, int dives);

    QueuedFileDialogs fileDialogs;
    MyDocumentController documents;
};

/// The documents, windows and menus of the program as it is.
struct WholeProgram : testing::Test {
    WholeProgram();
    /// Opens a copy of a sample, since an open document is locked and other tests look at the samples at the same time.
    DocumentWindow* openSample(const QString& ending);

    TestDesktop desktop;
    QueuedFileDialogs fileDialogs;
    MyDocumentController documents;
    AppDelegate delegate;
};

}  // namespace tavrel
