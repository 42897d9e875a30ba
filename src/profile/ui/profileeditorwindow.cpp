#include "profile/ui/profileeditorwindow.h"

#include "desktop/alerts.h"
#include "desktop/desktop.h"
#include "desktop/ui/fittedtoscreen.h"
#include "desktop/ui/fixedpitch.h"
#include "desktop/ui/keptframe.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

ProfileEditorWindow::ProfileEditorWindow(Desktop& desktop)
    : desktop_(desktop), eraseAllSwitch_(new QCheckBox(text("Profil", "Replace all"))) {
    setObjectName(QStringLiteral("editProfilWindow"));
    eraseAllSwitch_->setObjectName(QStringLiteral("eraseAllSwitch"));
    eraseAllSwitch_->setToolTip(text("Profil", "Tip replace all"));
    auto* explanation = new QLabel(text("Profil", "Editor explanation"));
    explanation->setWordWrap(true);
    auto* grid = new QGridLayout;
    for (std::size_t index = 0; index < editedSeries.size(); ++index) {
        const EditedSeries& edited = editedSeries[index];
        const auto column = static_cast<int>(index);
        columns_[index] = newColumn(edited);
        auto* title = new QLabel(edited.title.text());
        title->setBuddy(columns_[index].text);
        grid->addWidget(title, 0, column);
        grid->addWidget(columns_[index].text, 1, column);
        grid->addWidget(columns_[index].count, 2, column);
        grid->addWidget(columns_[index].erase, 3, column);
    }
    auto* importButton = new QPushButton(text("Profil", "Import series"));
    importButton->setObjectName(QStringLiteral("importProfil"));
    const auto enable = [this, importButton] { importButton->setEnabled(anyMarked()); };
    for (Column& column : columns_) {
        connect(column.erase, &QCheckBox::toggled, this, [this, enable, &column] {
            column.dive = diveNumber_;
            enable();
        });
    }
    enable();
    connect(eraseAllSwitch_, &QCheckBox::clicked, this, &ProfileEditorWindow::toggleAll);
    connect(importButton, &QPushButton::clicked, this, &ProfileEditorWindow::importMarked);
    auto* closing = new QAction(this);
    closing->setShortcut(QKeySequence::Close);
    connect(closing, &QAction::triggered, this, &QWidget::close);
    addAction(closing);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(eraseAllSwitch_);
    bottom->addStretch();
    bottom->addWidget(importButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addLayout(grid, 1);
    layout->addLayout(bottom);
    resize(1040, 560);
    fitToScreen(*this);
    new KeptFrame(*this, desktop.preferences, QStringLiteral("editProfil"));
}

ProfileEditorWindow::Column ProfileEditorWindow::newColumn(const EditedSeries& edited) {
    auto* text = new QPlainTextEdit;
    text->setObjectName(QLatin1StringView(edited.textField));
    text->setAccessibleName(edited.title.text());
    text->setFont(fixedPitch(text->font()));
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setTabChangesFocus(true);
    auto* count = new QLabel;
    count->setObjectName(QLatin1StringView(edited.countField));
    auto* erase = new QCheckBox(tavrel::text("Profil", "Replace"));
    erase->setObjectName(QLatin1StringView(edited.eraseSwitch));
    erase->setAccessibleDescription(edited.title.text());
    // Whoever types into a series means to replace it.
    connect(text, &QPlainTextEdit::textChanged, erase, [text, erase] {
        if (text->document()->isModified()) {
            erase->setChecked(true);
        }
    });
    return {text, count, erase, 0};
}

void ProfileEditorWindow::updateProfilInfo(const ProfileSeries& profile, qint32 diveNumber) {
    shown_ = profile;
    setDiveNumber(diveNumber);
    showTexts();
}

void ProfileEditorWindow::followDive(const ProfileSeries& profile, qint32 diveNumber) {
    shown_ = profile;
    setDiveNumber(diveNumber);
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        const Column& column = columns_[index];
        if (!column.erase->isChecked()) {
            showText(index);
        } else if (column.dive != diveNumber) {
            column.count->setText(textWith("Profil", "Typed for dive", column.dive));
        }
    }
}

void ProfileEditorWindow::setDiveNumber(qint32 number) {
    diveNumber_ = number;
    setWindowTitle(textWith("Carnet", "Dive number profile datas title", number));
}

bool ProfileEditorWindow::anyMarked() const {
    return std::any_of(columns_.begin(), columns_.end(),
                       [](const Column& column) { return column.erase->isChecked(); });
}

void ProfileEditorWindow::showTexts() {
    eraseAllSwitch_->setChecked(false);
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        showText(index);
    }
}

void ProfileEditorWindow::showText(std::size_t index) {
    const Column& column = columns_[index];
    column.text->setPlainText(editorText(shown_, editedSeries[index]));
    column.count->setText(countText(shown_, editedSeries[index]));
    column.erase->setChecked(false);
}

void ProfileEditorWindow::selectAllSwitches() {
    eraseAllSwitch_->setChecked(true);
    for (const Column& column : columns_) {
        column.text->clear();
        column.erase->setChecked(true);
    }
}

void ProfileEditorWindow::toggleAll(bool on) {
    if (on) {
        selectAllSwitches();
    } else {
        showTexts();
    }
}

ProfileEditorWindow::Column* ProfileEditorWindow::typedElsewhere() {
    const auto found = std::find_if(columns_.begin(), columns_.end(), [this](const Column& column) {
        return column.erase->isChecked() && column.dive != diveNumber_;
    });
    return found == columns_.end() ? nullptr : &*found;
}

QString ProfileEditorWindow::importQuestion() {
    const Column* elsewhere = typedElsewhere();
    return elsewhere ? textWith("Profil", "Import elsewhere question", elsewhere->dive, diveNumber_)
                     : textWith("Profil", "Import question", diveNumber_);
}

void ProfileEditorWindow::importMarked() {
    // The form may have gone to another dive since, whose profile would be replaced.
    if (!typedElsewhere() || desktop_.alerts.ask(importQuestion(), {tavrel::text("Profil", "Import series"),
                                                                    tavrel::text("Main", "Cancel")}) == 0) {
        Q_EMIT importRequested(chosenTexts());
    }
}

bool ProfileEditorWindow::settle() {
    if (!isVisible() || !anyMarked()) {
        return true;
    }
    enum Answer { take, drop };
    const int answer = desktop_.alerts.ask(
        importQuestion(),
        {tavrel::text("Profil", "Import series"), tavrel::text("Main", "Discard"), tavrel::text("Main", "Cancel")});
    if (answer == take) {
        Q_EMIT importRequested(chosenTexts());
    } else if (answer == drop) {
        showTexts();
    }
    return answer == take || answer == drop;
}

void ProfileEditorWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(settle());
}

SeriesTexts ProfileEditorWindow::chosenTexts() const {
    SeriesTexts texts;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        if (columns_[index].erase->isChecked()) {
            texts[index] = columns_[index].text->toPlainText();
        }
    }
    return texts;
}

}  // namespace tavrel
