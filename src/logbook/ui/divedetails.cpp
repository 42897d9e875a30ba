#include "logbook/ui/divedetails.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/desktop.h"
#include "logbook/divefigures.h"
#include "logbook/diveform.h"
#include "logbook/diveprofile.h"
#include "profile/profilestyle.h"
#include "profile/ui/profileview.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace tavrel {

DiveDetails::DiveDetails(Desktop& desktop, QWidget* parent)
    : QWidget(parent), desktop_(desktop), pages_(new QStackedLayout(this)) {
    setObjectName(QStringLiteral("diveDetails"));
    setAccessibleName(text("Carnet", "Details"));
    auto* hint = new QLabel(text("Carnet", "No dive selected"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
    pages_->addWidget(hint);
    for (const Notification name :
         {Notification::profile, Notification::updateTableView, Notification::updateEditDive}) {
        subscriptions_.push_back(desktop.notifications.subscribe(name, [this] { setDive(dive_); }));
    }
}

DiveDetails::~DiveDetails() = default;

void DiveDetails::makePage() {
    if (form_) {
        return;
    }
    form_ = std::make_unique<DiveForm>(desktop_);
    profile_ = new ProfileView;
    sample_ = new QLabel;
    notes_ = new QPlainTextEdit;
    sample_->setObjectName(QStringLiteral("sampleField"));
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setMinimumWidth(1);
    profile_->setMinimumHeight(6 * fontMetrics().lineSpacing());
    connect(profile_, &ProfileView::sampleMarked, this, &DiveDetails::showSample);
    auto* picture = new QVBoxLayout;
    picture->setSpacing(2);
    picture->addWidget(profile_, 1);
    picture->addWidget(sample_);

    notes_->setReadOnly(true);
    notes_->setTabChangesFocus(true);
    notes_->setFrameShape(QFrame::NoFrame);
    notes_->setObjectName(QStringLiteral("notes"));
    notes_->setAccessibleName(text("Carnet", "Group notes"));
    notes_->setPlaceholderText(text("Carnet", "No notes"));
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(8, 6, 8, 6);
    columns->setSpacing(16);
    columns->addLayout(picture, 3);
    columns->addWidget(newFigures(), 4);
    columns->addWidget(notes_, 4);
    pages_->addWidget(page);
}

ProfileView& DiveDetails::profile() {
    makePage();
    return *profile_;
}

QWidget* DiveDetails::newFigures() {
    auto* contents = new QWidget;
    auto* grid = new QGridLayout(contents);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(3);
    const auto figures = keyFigures(Plongee(), *form_);
    for (std::size_t place = 0; place < figures.size(); ++place) {
        auto* caption = new QLabel(figures[place].label.text());
        auto* value = new QLabel;
        value->setObjectName(QLatin1StringView(figures[place].label.key));
        value->setTextFormat(Qt::PlainText);
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
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    return area;
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

void DiveDetails::showSample() {
    const bool hasProfile = dive_ && dive_->hasProfile();
    sample_->setText(hasProfile ? profile_->markedWords() : profile_->drawing().description);
}

void DiveDetails::refresh() {
    outdated_ = false;
    if (dive_) {
        makePage();
    }
    pages_->setCurrentIndex(dive_ ? 1 : 0);
    if (!dive_) {
        return;
    }
    profile_->setProfile(profileDiveOf(*dive_), ProfileStyle::read(desktop_.preferences),
                         profileTitle(dive_->noPlongee));
    const auto figures = keyFigures(*dive_, *form_);
    for (std::size_t place = 0; place < figures.size(); ++place) {
        // What cannot be known says why in the place of the figure.
        const bool isKnown = !figures[place].text.isNull();
        QLabel* value = figures_[place];
        const QString explanation = withDecimalSign(figures[place].explanation);
        value->setText(isKnown ? withDecimalSign(figures[place].text) : explanation);
        value->setForegroundRole(isKnown ? QPalette::WindowText : QPalette::PlaceholderText);
        value->setToolTip(explanation);
        value->setAccessibleDescription(explanation);
        captions_[place]->setToolTip(explanation);
    }
    notes_->setPlainText(dive_->notes);
}

}  // namespace tavrel
