#include "documents/ui/documentwindow.h"

#include "base/paths.h"
#include "base/texts.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QUrl>

namespace tavrel {

DocumentWindow::DocumentWindow(Document& document, Desktop& desktop)
    : desktop_(desktop), document_(document), messageBar_(new MessageBar(this)) {
    addToolBar(messageBar_);
    addToolBarBreak();
    setAcceptDrops(true);
    connect(&document, &Document::fileChanged, this, &DocumentWindow::updateTitle);
    connect(&document, &Document::changedStateChanged, this, &DocumentWindow::updateTitle);
    updateTitle();
}

void DocumentWindow::updateTitle() {
    // A file name may itself hold the marker that stands for the change mark; doubled it stands for itself.
    QString name = document_.displayName();
    name.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    if (document_.isReadOnly()) {
        name = textWith("Main", "Read-only title", name);
    }
    setWindowTitle(name + QStringLiteral("[*]"));
    setWindowModified(document_.isChanged());
}

bool DocumentWindow::leaveEditing(Settling next) {
    const auto entries = askAboutEntries(next);
    if (entries) {
        settleEntries(*entries);
    }
    return entries.has_value();
}

void DocumentWindow::closeWithDocument() {
    mayClose_ = true;
    // Otherwise the window that holds them would ask.
    settleEntries(Entries::dropped);
    for (QWidget* window : furtherWindows()) {
        window->close();
    }
    close();
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayClose_);
    if (!mayClose_) {
        Q_EMIT closeRequested();
    }
}

void DocumentWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!localFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void DocumentWindow::dropEvent(QDropEvent* event) {
    // A copy whatever was proposed: whoever offers a move may delete the file after it.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Opening may ask the user something, and whoever dragged waits for the end of this event.
    QMetaObject::invokeMethod(
        this, [this, files = localFiles(*event->mimeData())] { Q_EMIT filesDropped(files); }, Qt::QueuedConnection);
}

QStringList localFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& address : data.urls()) {
        if (address.isLocalFile()) {
            // By its bytes, which need not be text.
            files.append(pathFromBytes(QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1())));
        }
    }
    return files;
}

}  // namespace tavrel
