#include "logbook/ui/divedetails.h"

#include "base/texts.h"
#include "desktop/desktop.h"
#include "logbook/divefigures.h"
#include "logbook/diveprofile.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStackedLayout>

namespace tavrel {

/// Paints the profile, as large as fits.
class DiveDetails::Picture : public QWidget {
public:
    Picture() {
        setObjectName(QStringLiteral("profilePicture"));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    void show(Drawing drawing) {
        drawing_ = std::move(drawing);
        setAccessibleName(drawing_.title);
        setAccessibleDescription(drawing_.description);
        update();
    }
    const Drawing& drawing() const { return drawing_; }
    QSize minimumSizeHint() const override { return {200, 120}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing_.paint(painter, rect());
    }

private:
    Drawing drawing_;
};

DiveDetails::DiveDetails(Desktop& desktop, QWidget* parent)
    : QWidget(parent),
      desktop_(desktop),
      pages_(new QStackedLayout(this)),
      picture_(new Picture),
      notes_(new QPlainTextEdit) {
    setObjectName(QStringLiteral("diveDetails"));
    setAccessibleName(text("Carnet", "Details"));
    auto* hint = new QLabel(text("Carnet", "No dive selected"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
    pages_->addWidget(hint);

    notes_->setReadOnly(true);
    notes_->setFrameShape(QFrame::NoFrame);
    notes_->setObjectName(QStringLiteral("notes"));
    notes_->setAccessibleName(text("Carnet", "Group notes"));
    notes_->setPlaceholderText(text("Carnet", "No notes"));
    addFigures();
    for (const Notification name :
         {Notification::profile, Notification::updateTableView, Notification::updateEditDive}) {
        subscriptions_.push_back(desktop.notifications.subscribe(name, [this] { setDive(dive_); }));
    }
}

void DiveDetails::addFigures() {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(8, 6, 8, 6);
    columns->addWidget(picture_, 3);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    const auto figures = keyFigures(Plongee(), desktop_);
    for (std::size_t place = 0; place < figures.size(); ++place) {
        auto* caption = new QLabel(figures[place].label.text());
        auto* value = new QLabel;
        value->setObjectName(QStringLiteral("figure%1").arg(place));
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        value->setWordWrap(true);
        value->setAccessibleName(caption->text());
        grid->addWidget(caption, static_cast<int>(place), 0, Qt::AlignTop);
        grid->addWidget(value, static_cast<int>(place), 1, Qt::AlignTop);
        captions_.push_back(caption);
        figures_.push_back(value);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(static_cast<int>(figures.size()), 1);
    columns->addLayout(grid, 3);
    columns->addWidget(notes_, 2);
    pages_->addWidget(page);
}

const Drawing& DiveDetails::profile() const {
    return picture_->drawing();
}

void DiveDetails::setDive(DivePointer dive) {
    dive_ = std::move(dive);
    outdated_ = true;
    if (isVisible()) {
        refresh();
    }
}

void DiveDetails::showEvent(QShowEvent* event) {
    if (outdated_) {
        refresh();
    }
    QWidget::showEvent(event);
}

void DiveDetails::refresh() {
    outdated_ = false;
    pages_->setCurrentIndex(dive_ ? 1 : 0);
    if (!dive_) {
        return;
    }
    picture_->show(profileDrawing(*dive_, desktop_.preferences));
    const auto figures = keyFigures(*dive_, desktop_);
    for (std::size_t place = 0; place < figures.size(); ++place) {
        // What cannot be known says why in the place of the figure.
        const bool isKnown = !figures[place].text.isNull();
        QLabel* value = figures_[place];
        value->setText(isKnown ? figures[place].text : figures[place].explanation);
        value->setForegroundRole(isKnown ? QPalette::WindowText : QPalette::PlaceholderText);
        value->setToolTip(isKnown ? figures[place].explanation : QString());
        value->setAccessibleDescription(value->toolTip());
        captions_[place]->setToolTip(value->toolTip());
    }
    notes_->setPlainText(dive_->notes);
}

}  // namespace tavrel
