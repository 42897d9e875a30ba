#pragma once

#include "desktop/desktop.h"
#include "desktop/printsettings.h"
#include "drawing/styledtext.h"

#include <QMainWindow>

class QTextEdit;

namespace tavrel {

struct PrintJob;

/// Shows a card: a text in several colours, to read, copy and print. On the screen its colours are shifted where the
/// background would swallow them, and black is the colour of text; paper gets the plain ones.
class CardWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Keeps its frame under a name.
    CardWindow(Desktop& desktop, const PrintSettings& print, const QString& name, QWidget* parent = nullptr);

    /// The text from now on; the title names the print job too.
    void setCard(const QString& title, const StyledText& card);
    const StyledText& card() const { return card_; }
    void bringToFront();
    void print();
    void preview();

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildCommands();
    PrintJob printJob() const;
    void showText();

    Desktop& desktop_;
    PrintSettings print_;
    QTextEdit* shown_;
    StyledText card_;
};

}  // namespace tavrel
