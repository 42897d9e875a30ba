#include "interchange/ui/exportwindow.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "documents/ui/shownprogress.h"
#include "interchange/lossreport.h"
#include "interchange/standard/csvtext.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

namespace {

constexpr const char* proposedFormat = "uddf-3.2";

RecordList selectedRecords(const Carnet& carnet) {
    RecordList list;
    for (const int row : carnet.selectedRows()) {
        list.push_back(carnet.recordAt(row));
    }
    return list;
}

}  // namespace

ExportWindow::ExportWindow(Carnet& carnet, FileDialogs& fileDialogs, FileTaken isTaken, QWidget* parent)
    : QDialog(parent),
      carnet_(carnet),
      fileDialogs_(fileDialogs),
      isTaken_(std::move(isTaken)),
      choices_{carnet.records(), selectedRecords(carnet), carnet.foundRecords()},
      format_(new QComboBox),
      columnsBox_(new QGroupBox(text("Interchange", "Export columns"))),
      columns_(new QListWidget),
      losses_(new QListWidget),
      lossesHint_(new QLabel(text("Interchange", "Export comes back"))),
      export_(nullptr) {
    setObjectName(QStringLiteral("exportWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(text("Interchange", "Export dives"));

    format_->setObjectName(QStringLiteral("exportFormat"));
    for (const LogbookExport& each : logbookExports()) {
        format_->addItem(text(each.title), QString::fromLatin1(each.name));
    }
    format_->setCurrentIndex(format_->findData(QString::fromLatin1(proposedFormat)));
    auto* which = new QHBoxLayout;
    const std::array<QString, 3> titles{
        textWith("Interchange", "All dives", static_cast<int>(choices_[allDives].size())),
        textWith("Interchange", "Selected dives", static_cast<int>(choices_[selectedDives].size())),
        textWith("Interchange", "Dives last found", static_cast<int>(choices_[foundDives].size()))};
    for (std::size_t choice = 0; choice < which_.size(); ++choice) {
        which_[choice] = new QRadioButton(titles[choice]);
        which_[choice]->setEnabled(choice == allDives || !choices_[choice].empty());
        which->addWidget(which_[choice]);
    }
    which->addStretch(1);
    which_[allDives]->setChecked(true);
    auto* entries = new QFormLayout;
    entries->addRow(text("Interchange", "Export format"), format_);
    entries->addRow(text("Interchange", "Export which"), which);

    columns_->setObjectName(QStringLiteral("exportColumns"));
    columns_->setAccessibleName(columnsBox_->title());
    for (const QString& field : csvFields()) {
        auto* item = new QListWidgetItem(fieldTitle(field), columns_);
        item->setData(Qt::UserRole, field);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    auto* all = new QPushButton(text("Interchange", "Tick all"));
    auto* none = new QPushButton(text("Interchange", "Tick none"));
    auto* ticks = new QHBoxLayout;
    ticks->addWidget(all);
    ticks->addWidget(none);
    ticks->addStretch(1);
    auto* columnsLayout = new QVBoxLayout(columnsBox_);
    columnsLayout->addWidget(columns_);
    columnsLayout->addLayout(ticks);

    losses_->setObjectName(QStringLiteral("losses"));
    losses_->setSelectionMode(QAbstractItemView::NoSelection);
    losses_->setWordWrap(true);
    lossesHint_->setWordWrap(true);
    auto* lossesBox = new QGroupBox(text("Interchange", "Losses"));
    losses_->setAccessibleName(lossesBox->title());
    auto* lossesLayout = new QVBoxLayout(lossesBox);
    lossesLayout->addWidget(losses_);
    lossesLayout->addWidget(lossesHint_);

    auto* buttons = new QDialogButtonBox;
    export_ = buttons->addButton(text("Interchange", "Export"), QDialogButtonBox::AcceptRole);
    export_->setObjectName(QStringLiteral("exportChosen"));
    export_->setDefault(true);
    buttons->addButton(text("Main", "Cancel"), QDialogButtonBox::RejectRole);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(entries);
    layout->addWidget(columnsBox_, 3);
    layout->addWidget(lossesBox, 2);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 34);

    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &ExportWindow::report);
    for (QRadioButton* button : which_) {
        connect(button, &QRadioButton::toggled, this, [this](bool on) { on ? choicesChanged() : void(); });
    }
    connect(format_, &QComboBox::currentIndexChanged, this, &ExportWindow::choicesChanged);
    connect(columns_, &QListWidget::itemChanged, this, &ExportWindow::choicesChanged);
    connect(all, &QPushButton::clicked, this, [this] { tickAllColumns(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAllColumns(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportWindow::exportDives);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    choicesChanged();
}

const LogbookExport& ExportWindow::format() const {
    return logbookExports()[static_cast<std::size_t>(format_->currentIndex())];
}

RecordList ExportWindow::dives() const {
    const auto chosen = std::find_if(which_.begin(), which_.end(), [](auto* button) { return button->isChecked(); });
    return choices_[static_cast<std::size_t>(chosen - which_.begin())];
}

int ExportWindow::tickedColumns() const {
    int ticked = 0;
    for (int row = 0; row < columns_->count(); ++row) {
        ticked += columns_->item(row)->checkState() == Qt::Checked ? 1 : 0;
    }
    return ticked;
}

QStringList ExportWindow::columns() const {
    QStringList chosen;
    if (format().hasColumns() && tickedColumns() < columns_->count()) {
        for (int row = 0; row < columns_->count(); ++row) {
            if (columns_->item(row)->checkState() == Qt::Checked) {
                chosen.append(columns_->item(row)->data(Qt::UserRole).toString());
            }
        }
    }
    return chosen;
}

void ExportWindow::tickAllColumns(bool ticked) {
    {
        const QSignalBlocker quiet(columns_);
        for (int row = 0; row < columns_->count(); ++row) {
            columns_->item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
        }
    }
    choicesChanged();
}

void ExportWindow::choicesChanged() {
    columnsBox_->setVisible(format().hasColumns());
    lossesHint_->setVisible(format().heldFields.empty() && columns().isEmpty());
    export_->setEnabled(!format().hasColumns() || tickedColumns() > 0);
    losses_->clear();
    losses_->addItem(text("Interchange", "Looking for losses"));
    due_.start();
}

void ExportWindow::report() {
    const auto losses = [&] {
        const ShownProgress progress(carnet_, this, text("Interchange", "Looking for losses"));
        auto found = lossesOf(carnet_, format(), dives(), columns());
        return progress.wasCancelled() ? failure(text("Interchange", "Losses not known")) : std::move(found);
    }();
    losses_->clear();
    losses_->addItems(losses ? lossLines(*losses) : QStringList(losses.error().message()));
}

QString ExportWindow::proposal() const {
    const QString& file = carnet_.file();
    const QFileInfo info(file);
    return file.isEmpty() ? carnet_.displayName() : info.absolutePath() + u'/' + info.completeBaseName();
}

void ExportWindow::exportDives() {
    const LogbookExport& chosen = format();
    const auto file = fileDialogs_.fileToSave(this, text("Interchange", "Export dives"), proposal(),
                                              {{text(chosen.title), {QString::fromLatin1(chosen.extension)}}});
    if (!file || isTaken_(file->file)) {
        return;
    }
    const auto bytes = [&]() -> std::optional<Expected<QByteArray>> {
        const ShownProgress progress(carnet_, this, text("Main", "Exporting"));
        auto produced = chosen.produceFrom(carnet_, dives(), columns());
        return progress.wasCancelled() ? std::nullopt : std::optional(std::move(produced));
    }();
    if (!bytes) {
        return;
    }
    if (const auto written = carnet_.writeExport(file->file, *bytes); !written) {
        carnet_.desktop().alerts.fail(written.error());
        return;
    }
    accept();
}

}  // namespace tavrel
