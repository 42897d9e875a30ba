#include "profile/ui/profilewindow.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/desktop.h"
#include "desktop/ui/fittedtoscreen.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/keptframe.h"
#include "drawing/ui/printing.h"
#include "profile/ui/profileview.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace tavrel {

ProfileWindow::ProfileWindow(Desktop& desktop)
    : desktop_(desktop),
      view_(new ProfileView),
      readOut_(new QLabel),
      sample_(new QLabel),
      samplingRatePopUp_(new QComboBox) {
    setObjectName(QStringLiteral("GraphProfileWindow"));
    readOut_->setObjectName(QStringLiteral("readOutField"));
    sample_->setObjectName(QStringLiteral("sampleField"));
    sample_->setAccessibleName(text("Profil", "Values of the sample"));
    for (QLabel* label : {readOut_, sample_}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
    }
    samplingRatePopUp_->setObjectName(QStringLiteral("samplingRatePopUp"));
    for (qint32 code = 0; code < static_cast<qint32>(samplingIntervals.size()); ++code) {
        samplingRatePopUp_->addItem(samplingTitle(code), code);
    }
    auto* intervalLabel = new QLabel(text("Profil", "Time scale"));
    intervalLabel->setBuddy(samplingRatePopUp_);
    auto* dataButton = new QPushButton(text("Profil", "Data"));
    auto* pageLayout = new QPushButton(text("Profil", "Page layout"));
    auto* printButton = new QPushButton(iconNamed(QStringLiteral("imprimante")), text("Main", "Print"));
    auto* previewButton = new QPushButton(iconNamed(QStringLiteral("chercher")), text("Main", "Menu print preview"));
    connect(dataButton, &QPushButton::clicked, view_, &DrawingView::showData);
    connect(pageLayout, &QPushButton::clicked, this, [this] { runPageLayout(this); });
    connect(printButton, &QPushButton::clicked, this, &ProfileWindow::print);
    connect(previewButton, &QPushButton::clicked, this, &ProfileWindow::preview);

    auto* row = new QHBoxLayout;
    for (QWidget* widget : {static_cast<QWidget*>(intervalLabel), static_cast<QWidget*>(samplingRatePopUp_),
                            static_cast<QWidget*>(dataButton), static_cast<QWidget*>(pageLayout),
                            static_cast<QWidget*>(previewButton), static_cast<QWidget*>(printButton)}) {
        row->addWidget(widget, 0, Qt::AlignVCenter);
    }
    row->insertStretch(2, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view_, 1);
    layout->addWidget(readOut_);
    layout->addWidget(sample_);
    layout->addLayout(row);

    connect(view_, &ProfileView::pointerMoved, this, [this](const QPointF& point) {
        pointer_ = point;
        showReadOut();
    });
    connect(view_, &ProfileView::sampleMarked, this, [this] { sample_->setText(view_->markedWords()); });
    connect(samplingRatePopUp_, &QComboBox::currentIndexChanged, this, &ProfileWindow::showReadOut);
    addShortcut(QKeySequence::Print, [this] { print(); });
    addShortcut(QKeySequence::Close, [this] { close(); });
    resize(780, 760);
    fitToScreen(*this);
    new KeptFrame(*this, desktop.preferences, QStringLiteral("Profil"));
    view_->setFocus();
}

void ProfileWindow::addShortcut(QKeySequence::StandardKey keys, std::function<void()> command) {
    auto* action = new QAction(this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, std::move(command));
    addAction(action);
}

void ProfileWindow::setProfile(const ProfileDive& dive, const ProfileStyle& style, const QString& title) {
    setWindowTitle(title);
    pointer_.reset();
    view_->setProfile(dive, style, title);
    const int item = samplingRatePopUp_->findData(dive.samplingRate);
    samplingRatePopUp_->setCurrentIndex(item >= 0 ? item : 0);
    showReadOut();
}

void ProfileWindow::showReadOut() {
    const qint32 code = samplingRatePopUp_->currentData().toInt();
    readOut_->setText(pointer_ ? withDecimalSign(profileReadOut(*pointer_, view_->scale(), code).words())
                               : view_->drawing().description);
}

QString ProfileWindow::readOut() const {
    return readOut_->text();
}

QString ProfileWindow::sampleValues() const {
    return sample_->text();
}

PrintJob ProfileWindow::printJob() const {
    PrintJob job{{}, windowTitle(), desktop_.clock.now().date(), [this](const Paper& paper) {
                     return pagesOf(view_->drawing(), paper);
                 }};
    job.settings.top = job.settings.bottom = job.settings.left = job.settings.right = 25;
    job.settings.landscape = true;
    return job;
}

void ProfileWindow::print() {
    runPrint(this, printJob(), desktop_.alerts);
}

void ProfileWindow::preview() {
    runPrintPreview(this, printJob());
}

}  // namespace tavrel
