#include "book/ui/repertorywindow.h"

#include "base/texts.h"
#include "book/column.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/keptframe.h"
#include "desktop/ui/windowkeys.h"
#include "forms/pictures.h"

#include <QListWidget>
#include <QPixmap>
#include <QTimer>

namespace tavrel {

namespace {

constexpr QSize pictureSize(200, 150);

}  // namespace

RepertoryWindow::RepertoryWindow(BookBase& book, QWidget* parent)
    : QMainWindow(parent), book_(book), pictures_(new QListWidget) {
    setObjectName(QStringLiteral("repertoireWindow"));
    const ControlTableBase& controls = book.form().state().table();
    const int naming = controls.find(book.description().numberField);
    name_ = book.layout().field(std::string_view(controls.controls()[static_cast<std::size_t>(naming)].field));
    for (const Item& item : book.layout().items) {
        if (item.field().kind() == FieldKind::image) {
            picture_ = item.field();
        }
    }
    pictures_->setViewMode(QListView::IconMode);
    pictures_->setIconSize(pictureSize);
    pictures_->setGridSize(pictureSize + QSize(24, fontMetrics().height() * 2 + 16));
    pictures_->setResizeMode(QListView::Adjust);
    pictures_->setMovement(QListView::Static);
    pictures_->setUniformItemSizes(true);
    pictures_->setTextElideMode(Qt::ElideRight);
    pictures_->setFrameShape(QFrame::NoFrame);
    pictures_->setAccessibleName(book.description().words.tableName.text());
    setCentralWidget(pictures_);
    connect(pictures_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { book_.userSelects({pictures_->row(item)}); });
    connect(pictures_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        if (book_.userSelects({pictures_->row(item)})) {
            book_.editWindow();
        }
    });
    connect(&book, &ListDocument::listChanged, this, [this] {
        if (isVisible()) {
            fill();
        }
    });
    addCloseKeys(*this);
    resize(720, 560);
    new KeptFrame(*this, book.desktop().preferences,
                  QLatin1StringView(book.description().layoutName) + QStringLiteral(" repertory"));
}

void RepertoryWindow::bringToFront() {
    setWindowTitle(book_.displayName());
    tavrel::bringToFront(this);
    pictures_->setFocus();
}

void RepertoryWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    fill();
}

void RepertoryWindow::fill() {
    pictures_->clear();
    const TableStyle style(book_.desktop().clock);
    const QIcon placeholder = iconNamed(QStringLiteral("noPhoto"));
    for (const RecordPointer& record : book_.records()) {
        pictures_->addItem(new QListWidgetItem(placeholder, plainText(*record, name_, style)));
    }
    pictures_->setCurrentRow(book_.selectedRow());
    shown_ = 0;
    showNext();
}

void RepertoryWindow::showNext() {
    // A large picture takes its time to read, so the window stays awake between one and the next.
    while (isVisible() && shown_ < book_.count()) {
        const int row = shown_++;
        const Image& picture = *picture_.get<Image>(*book_.recordAt(row));
        if (picture.isNull()) {
            continue;
        }
        if (const auto pixels = pixelsOf(picture)) {
            const QImage small = pixels->scaled(pictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            pictures_->item(row)->setIcon(QPixmap::fromImage(small));
        }
        QTimer::singleShot(0, this, &RepertoryWindow::showNext);
        return;
    }
}

}  // namespace tavrel
