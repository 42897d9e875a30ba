#include "book/ui/cardwindow.h"

#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/keptframe.h"
#include "desktop/ui/readablecolour.h"
#include "desktop/ui/windowkeys.h"
#include "drawing/pages.h"
#include "drawing/ui/printing.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolBar>

namespace tavrel {

CardWindow::CardWindow(Desktop& desktop, const PrintSettings& print, const QString& name, QWidget* parent)
    : QMainWindow(parent), desktop_(desktop), print_(print), shown_(new QTextEdit) {
    setObjectName(QStringLiteral("cardWindow"));
    print_.landscape = false;
    shown_->setReadOnly(true);
    shown_->setFrameShape(QFrame::NoFrame);
    shown_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    shown_->document()->setDocumentMargin(12);
    setCentralWidget(shown_);
    setContextMenuPolicy(Qt::NoContextMenu);
    buildCommands();
    resize(560, 680);
    new KeptFrame(*this, desktop.preferences, name);
}

void CardWindow::buildCommands() {
    auto* bar = addToolBar(text("Main", "Synthesis card"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    auto* print =
        bar->addAction(iconNamed(QStringLiteral("imprimante")), text("Main", "Print"), this, &CardWindow::print);
    print->setObjectName(QStringLiteral("printCard"));
    print->setShortcut(QKeySequence::Print);
    bar->addAction(iconNamed(QStringLiteral("chercher")), text("Main", "Menu print preview"), this,
                   &CardWindow::preview);
    addCloseKeys(*this);
}

void CardWindow::setCard(const QString& title, const StyledText& card) {
    setWindowTitle(title);
    shown_->setAccessibleName(title);
    card_ = card;
    showText();
}

void CardWindow::showText() {
    const QColor ground = palette().color(QPalette::Base);
    StyledText readable;
    for (const StyledRun& run : card_.runs()) {
        const bool isPlain = run.colour == QColor(Qt::black);
        readable.append(run.text, isPlain ? palette().color(QPalette::Text) : readableOn(ground, run.colour));
    }
    const int place = shown_->verticalScrollBar()->value();
    auto document = textDocumentOf(readable);
    document->setDefaultFont(shown_->font());
    document->setDocumentMargin(12);
    document->setParent(shown_);
    shown_->setDocument(document.release());
    shown_->verticalScrollBar()->setValue(place);
}

void CardWindow::bringToFront() {
    tavrel::bringToFront(this);
    shown_->setFocus();
}

PrintJob CardWindow::printJob() const {
    return {print_, windowTitle(), desktop_.clock.now().date(),
            [this](const Paper& paper) { return pagesOf(card_, paper); }};
}

void CardWindow::print() {
    runPrint(this, printJob(), desktop_.alerts);
}

void CardWindow::preview() {
    runPrintPreview(this, printJob());
}

void CardWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && shown_) {
        showText();
    }
}

}  // namespace tavrel
