#include "interchange/ui/importwindow.h"

#include "base/decimalsign.h"
#include "base/numbers.h"
#include "base/safefile.h"
#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "interchange/standard/gasmix.h"
#include "interchange/ui/tablecolumnspage.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <QThread>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

namespace {

enum Column { start, place, deepest, duration, gas, profile, remarks, columns };

constexpr QSize profileSize{120, 28};
/// A table may have a thousand columns that a dive has no place for.
constexpr qsizetype mostLostShown = 20;

/// The depths as a filled shape under the surface, no more points than the picture is wide.
QPixmap profilePicture(const Plongee& dive, const QColor& colour, qreal ratio) {
    QPixmap picture(profileSize * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    const std::size_t samples = dive.profilProfondeur.size();
    double deepest = 0;
    for (std::size_t sample = 0; sample < samples; ++sample) {
        deepest = std::max(deepest, dive.profilProfondeur.real(sample));
    }
    if (!dive.hasProfile() || !(deepest > 0)) {
        return picture;
    }
    QPainterPath path(QPointF(0, 0));
    const auto width = static_cast<std::size_t>(profileSize.width());
    const std::size_t step = std::max<std::size_t>(1, samples / width);
    for (std::size_t first = 0; first < samples; first += step) {
        // The deepest of the samples that share a point.
        double here = 0;
        for (std::size_t sample = first; sample < std::min(first + step, samples); ++sample) {
            here = std::max(here, dive.profilProfondeur.real(sample));
        }
        path.lineTo(static_cast<double>(first) / static_cast<double>(samples - 1) * profileSize.width(),
                    here / deepest * (profileSize.height() - 1));
    }
    path.lineTo(profileSize.width(), 0);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = colour;
    fill.setAlphaF(0.3F);
    painter.fillPath(path, fill);
    painter.setPen(QPen(colour, 1));
    painter.drawPath(path);
    return picture;
}

QString joined(const QString& one, const QString& other) {
    return one.isEmpty() || other.isEmpty() ? one + other : one + QStringLiteral(", ") + other;
}

QString startWords(const Plongee& dive) {
    const QDateTime moment = startOf(dive);
    if (!moment.isValid()) {
        return {};
    }
    const QLocale locale;
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy"))) {
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    return locale.toString(moment.date(), format) + u' ' + locale.toString(moment.time(), QLocale::ShortFormat);
}

}  // namespace

struct ImportWindow::Reading {
    std::atomic<bool> cancelled = false;
    Expected<Source> source = failure(QString());
};

ImportWindow::ImportWindow(Carnet& carnet, Desktop& desktop, const QString& file, std::function<bool()> mayChange,
                           QWidget* parent)
    : QWidget(parent, Qt::Window),
      carnet_(carnet),
      desktop_(desktop),
      file_(file),
      mayChange_(std::move(mayChange)),
      state_(std::make_shared<Reading>()),
      heading_(new QLabel(textWith("Interchange", "Reading file", QFileInfo(file).fileName()))),
      progress_(new QProgressBar),
      tableColumns_(new TableColumnsPage),
      list_(new QTreeWidget),
      lost_(new QLabel),
      byDate_(new QCheckBox(text("Interchange", "Renumber by date"))),
      keepTexts_(new QCheckBox(text("Interchange", "Texts to notes"))),
      chosen_(new QLabel),
      columns_(new QPushButton(text("Interchange", "Table columns"))),
      import_(new QPushButton(text("Interchange", "Import"))) {
    setObjectName(QStringLiteral("importWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(text("Interchange", "Import dives"));
    progress_->setRange(0, 1000);
    list_->setObjectName(QStringLiteral("foundDives"));
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setIconSize(profileSize);
    list_->setAllColumnsShowFocus(true);
    list_->setHeaderLabels({text("Interchange", "Column start"), text("Interchange", "Column place"),
                            text("Interchange", "Column depth"), text("Interchange", "Column duration"),
                            text("Interchange", "Column gas"), text("Interchange", "Column profile"),
                            text("Interchange", "Column remarks")});
    list_->setAccessibleName(text("Interchange", "Import dives"));
    // What a file says is no markup.
    heading_->setTextFormat(Qt::PlainText);
    lost_->setTextFormat(Qt::PlainText);
    lost_->setWordWrap(true);

    auto* all = new QPushButton(text("Interchange", "Tick all"));
    auto* none = new QPushButton(text("Interchange", "Tick none"));
    auto* cancel = new QPushButton(text("Main", "Cancel"));
    import_->setObjectName(QStringLiteral("importChosen"));
    import_->setDefault(true);
    import_->setEnabled(false);
    auto* ticks = new QHBoxLayout;
    ticks->addWidget(all);
    ticks->addWidget(none);
    ticks->addWidget(chosen_, 1);
    ticks->addWidget(columns_);
    columns_->setCheckable(true);
    columns_->hide();
    tableColumns_->hide();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(import_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading_);
    layout->addWidget(progress_);
    layout->addWidget(tableColumns_, 1);
    layout->addWidget(list_, 1);
    layout->addLayout(ticks);
    layout->addWidget(lost_);
    layout->addWidget(byDate_);
    layout->addWidget(keepTexts_);
    layout->addLayout(buttons);
    resize(fontMetrics().averageCharWidth() * 140, fontMetrics().height() * 30);

    connect(all, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAll(false); });
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(import_, &QPushButton::clicked, this, &ImportWindow::importChosen);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this] {
            auto* button = qobject_cast<QPushButton*>(focusWidget());
            (button ? button : import_)->click();
        });
    }
    connect(list_, &QTreeWidget::itemChanged, this, &ImportWindow::updateChosen);
    connect(columns_, &QPushButton::toggled, tableColumns_, &QWidget::setVisible);
    connect(tableColumns_, &TableColumnsPage::chosenChanged, this, [this] {
        rememberTableColumns(desktop_.preferences, tableColumns_->chosen());
        stopReading();
        startReading();
    });
    startReading();
}

ImportWindow::~ImportWindow() {
    stopReading();
}

void ImportWindow::stopReading() {
    state_->cancelled = true;
    if (thread_) {
        thread_->disconnect(this);
        thread_->wait();
        thread_->deleteLater();
        thread_ = nullptr;
    }
}

void ImportWindow::startReading() {
    state_ = std::make_shared<Reading>();
    const auto state = state_;
    thread_ = QThread::create([this, state, file = file_, columns = tableColumns(desktop_.preferences),
                               usUnits = desktop_.preferences.get(settings::usUnits)] {
        const auto bytes = FileBytes::open(file);
        if (!bytes) {
            state->source = tl::unexpected(bytes.error());
            return;
        }
        // The window outlives the thread, which its end waits for.
        int told = 0;
        state->source = readSource(
            bytes->bytes(),
            [this, state, &told](std::size_t done, std::size_t total) {
                const int thousandths = static_cast<int>(done * 1000 / std::max<std::size_t>(total, 1));
                if (thousandths >= told + 10) {
                    told = thousandths;
                    QMetaObject::invokeMethod(
                        this, [this, thousandths] { advance(thousandths); }, Qt::QueuedConnection);
                }
                return !state->cancelled;
            },
            columns, usUnits);
        if (!state->source) {
            state->source = tl::unexpected(openingFailure(file, state->source.error()));
        }
    });
    thread_->setParent(this);
    connect(thread_, &QThread::finished, this, [this, state] {
        // The end of a reading that another has followed may still be on its way.
        if (state == state_) {
            showFound();
        }
    });
    thread_->start();
}

void ImportWindow::advance(int thousandths) {
    progress_->setValue(thousandths);
}

void ImportWindow::showFound() {
    progress_->hide();
    heading_->setWordWrap(true);
    if (!state_->source) {
        heading_->setText(state_->source.error().message());
        return;
    }
    found_ = std::move(state_->source->found);
    showTable();
    judge(carnet_, found_);
    const QString damage = found_.damage.isEmpty() ? QString() : u'\n' + damageText(found_.damage);
    heading_->setText(textWith("Interchange", "Dives found", static_cast<int>(found_.dives.size())) + damage);
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        for (int index = 0; index < static_cast<int>(found_.dives.size()); ++index) {
            addRow(index);
        }
    }
    // The remarks take what is left, which is to be enough for a few words.
    int taken = fontMetrics().averageCharWidth() * 30;
    for (int column = 0; column < remarks; ++column) {
        list_->resizeColumnToContents(column);
        taken += column == place ? 0 : list_->columnWidth(column);
    }
    const int placeRoom = std::max(list_->viewport()->width() - taken, fontMetrics().averageCharWidth() * 16);
    list_->setColumnWidth(place, std::min(list_->columnWidth(place), placeRoom));
    const QStringList lost = lostItemLines(found_);
    lost_->setVisible(!lost.isEmpty());
    const QString more = lost.size() > mostLostShown ? QStringLiteral(", …") : QString();
    lost_->setText(
        textWith("Interchange", "No place for", lost.mid(0, mostLostShown).join(QStringLiteral(", ")) + more));
    lost_->setToolTip(more.isEmpty() ? QString() : Qt::convertFromPlainText(lost.join(u'\n')));
    keepTexts_->setVisible(!lost.isEmpty());
    updateChosen();
}

void ImportWindow::showTable() {
    const std::vector<TableColumn>& columns = state_->source->columns;
    if (columns.empty()) {
        return;
    }
    tableColumns_->showColumns(columns);
    columns_->show();
    if (!holdsDay(columns)) {
        columns_->setChecked(true);
    }
}

void ImportWindow::addRow(int index) {
    const FoundDive& found = found_.dives[static_cast<std::size_t>(index)];
    const BreathedGas breathed = breathedGas(found.dive);
    const QStringList words = found.remarks();
    auto* row = new QTreeWidgetItem(list_);
    row->setFlags(row->flags() | Qt::ItemIsUserCheckable);
    row->setCheckState(start, found.duplicate ? Qt::Unchecked : Qt::Checked);
    row->setText(start, startWords(found.dive));
    row->setText(place, joined(found.dive.lieu, found.dive.site));
    row->setToolTip(place, row->text(place));
    row->setText(deepest,
                 withDecimalSign(shortestText(found.dive.profondeur)) +
                     (desktop_.preferences.get(settings::usUnits) ? QStringLiteral(" ft") : QStringLiteral(" m")));
    row->setText(duration, QString::number(found.dive.temps) + QStringLiteral(" min"));
    row->setText(gas, gasName(gasMix(breathed.oxygen / 100.0, breathed.helium / 100.0)));
    row->setData(profile, Qt::DecorationRole,
                 profilePicture(found.dive, palette().color(QPalette::Text), devicePixelRatioF()));
    row->setTextAlignment(deepest, Qt::AlignRight | Qt::AlignVCenter);
    row->setTextAlignment(duration, Qt::AlignRight | Qt::AlignVCenter);
    row->setText(remarks, words.join(QStringLiteral("; ")));
    row->setToolTip(remarks, words.join(u'\n'));
    if (!words.isEmpty()) {
        QFont slanted = list_->font();
        slanted.setItalic(true);
        row->setFont(remarks, slanted);
    }
}

void ImportWindow::tickAll(bool ticked) {
    {
        const QSignalBlocker quiet(list_);
        for (int index = 0; index < list_->topLevelItemCount(); ++index) {
            list_->topLevelItem(index)->setCheckState(start, ticked ? Qt::Checked : Qt::Unchecked);
        }
    }
    updateChosen();
}

void ImportWindow::updateChosen() {
    int ticked = 0;
    for (int index = 0; index < list_->topLevelItemCount(); ++index) {
        ticked += list_->topLevelItem(index)->checkState(start) == Qt::Checked ? 1 : 0;
    }
    chosen_->setText(textWith("Interchange", "Chosen", ticked));
    import_->setEnabled(ticked > 0);
}

void ImportWindow::importChosen() {
    // The logbook was in use meanwhile, and its form is about to show another dive.
    if (!mayChange_()) {
        return;
    }
    FoundDives chosen;
    chosen.damage = found_.damage;
    for (int index = 0; index < list_->topLevelItemCount(); ++index) {
        if (list_->topLevelItem(index)->checkState(start) == Qt::Checked) {
            chosen.dives.push_back(found_.dives[static_cast<std::size_t>(index)]);
        }
    }
    // The ticks decide, for those that are there already too.
    const ImportResult result =
        takeDives(carnet_, std::move(chosen), {false, byDate_->isChecked(), keepTexts_->isChecked()});
    if (result.taken > 0) {
        carnet_.selectLastDive(carnet_.count() - 1, false);
    }
    close();
    desktop_.alerts.tell(result.message());
}

}  // namespace tavrel
