#include "desktop/ui/fittedtoscreen.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tavrel {

namespace {

/// Would show all of its contents.
class WholeArea : public QScrollArea {
public:
    explicit WholeArea(QWidget* contents) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setWidget(contents);
    }

    QSize sizeHint() const override {
        return widget()->sizeHint() +
               QSize(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
    }
};

}  // namespace

QWidget* scrolledBeyond(int height, QWidget* contents) {
    return contents->sizeHint().height() <= height ? contents : new WholeArea(contents);
}

void fitToScreen(QWidget& window) {
    const QSize room = window.screen()->availableSize();
    QLayout* contents = window.layout();
    if (contents->totalMinimumSize().boundedTo(room) == contents->totalMinimumSize()) {
        return;
    }
    auto* inside = new QWidget;
    inside->setLayout(contents);  // which the window gives up
    auto* area = new WholeArea(inside);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    const QSize wanted = window.testAttribute(Qt::WA_Resized) ? window.size() : area->sizeHint();
    window.resize(wanted.boundedTo(room));
}

}  // namespace tavrel
