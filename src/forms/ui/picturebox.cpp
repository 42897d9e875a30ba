#include "forms/ui/picturebox.h"

#include "base/safefile.h"
#include "base/texts.h"
#include "forms/pictures.h"
#include "forms/ui/pictureview.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

namespace {

/// The picture that dropped or pasted data hold: that of a file rather than a likeness of it.
Expected<Image> pictureIn(const QMimeData* data) {
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile()) {
            return pictureOfFile(url.toLocalFile());
        }
    }
    const QImage pixels = qvariant_cast<QImage>(data->imageData());
    return pixels.isNull() ? failure(text("Main", "Picture unknown format")) : pictureOf(pixels);
}

QString filesWith(const QStringList& patterns) {
    return text("Main", "Picture files") + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

/// Shows the pixels one by one, in a window that scrolls where the screen is too small.
void enlarge(QWidget* parent, const QString& title, const QImage& pixels) {
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto* shown = new QLabel;
    shown->setPixmap(QPixmap::fromImage(pixels));
    shown->setAlignment(Qt::AlignCenter);
    auto* area = new QScrollArea;
    area->setWidget(shown);
    area->setWidgetResizable(true);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    constexpr double shareOfScreen = 0.85;
    constexpr int frame = 4;
    dialog.resize((pixels.size() + QSize(frame, frame)).boundedTo(parent->screen()->availableSize() * shareOfScreen));
    dialog.exec();
}

class PictureControl : public FormControl {
public:
    PictureControl(FormStateBase& state, int index) : FormControl(state, index, new QWidget) {
        view_ = new PictureView;
        view_->setObjectName(QStringLiteral("pictureView"));
        view_->setAccessibleName(text("Main", "Picture"));
        message_ = new QLabel;
        message_->setObjectName(QStringLiteral("pictureMessage"));
        message_->setWordWrap(true);
        message_->hide();
        auto* layout = new QVBoxLayout(widget());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view_, 1);
        layout->addWidget(message_);
        auto* row = new QHBoxLayout;
        layout->addLayout(row);
        const auto button = [&](const Title& title, const char* name, void (PictureControl::*action)()) {
            auto* made = new QPushButton(title.text());
            made->setObjectName(QLatin1StringView(name));
            made->setAutoDefault(false);
            connect(made, &QPushButton::clicked, this, action);
            row->addWidget(made);
            return made;
        };
        choose_ = button({"Main", "Picture choose"}, "pictureChoose", &PictureControl::choose);
        paste_ = button({"Main", "Picture paste"}, "picturePaste", &PictureControl::paste);
        row->addStretch();
        enlarge_ = button({"Main", "Picture enlarge"}, "pictureEnlarge", &PictureControl::showLarge);
        copy_ = button({"Main", "Picture copy"}, "pictureCopy", &PictureControl::copy);
        export_ = button({"Main", "Picture export"}, "pictureExport", &PictureControl::exportTo);
        remove_ = button({"Main", "Picture remove"}, "pictureRemove", &PictureControl::remove);
        widget()->setFocusProxy(view_);

        connect(view_, &PictureView::offered, this, [this](const QMimeData* data) { take(pictureIn(data)); });
        connect(view_, &PictureView::enlargeRequested, this, &PictureControl::showLarge);
        connect(view_, &PictureView::copyRequested, this, &PictureControl::copy);
        connect(view_, &PictureView::pasteRequested, this, &PictureControl::paste);
        connect(view_, &PictureView::removeRequested, this, &PictureControl::remove);
        connect(view_, &PictureView::faultChanged, this, [this] {
            if (view_->isVisible()) {
                say(view_->fault());
                describe();
                enable();
            }
        });
    }

    QList<QWidget*> focusWidgets() const override {
        return {view_, choose_, paste_, enlarge_, copy_, export_, remove_};
    }

protected:
    void showState(const ControlState& held) override {
        if (held.image != view_->picture()) {
            say({});
        }
        view_->showPicture(held.image);
        export_->setEnabled(!held.image.tiff.isEmpty());
        remove_->setEnabled(!held.image.isNull());
        if (held.image.isNull()) {
            enable();
        }
    }

private:
    void take(const Expected<Image>& picture) {
        if (!picture) {
            say(picture.error().sentence);
            return;
        }
        say({});
        state().place(index(), *picture);
    }

    /// A picture file that cannot be shown can be exported as it is, but not enlarged nor copied.
    void enable() {
        const bool isShown = !view_->pixels().isNull();
        enlarge_->setEnabled(isShown);
        copy_->setEnabled(isShown);
    }

    void say(const QString& words) {
        message_->setText(words);
        message_->setVisible(!words.isEmpty());
        // With a height that follows its width the page would ask for its usual height, and for bars to scroll.
        QSizePolicy policy = message_->sizePolicy();
        policy.setHeightForWidth(false);
        message_->setSizePolicy(policy);
        message_->setMinimumHeight(std::max(0, message_->heightForWidth(widget()->width())));
    }

    void describe() {
        const QSize size = view_->pixels().size();
        view_->setAccessibleDescription(size.isEmpty()
                                            ? text("Main", "Picture nowhere")
                                            : textWith("Main", "Picture shown", size.width(), size.height()));
    }

    void choose() {
        const QString path =
            QFileDialog::getOpenFileName(widget(), control().label.text(), {}, filesWith(readablePictures()));
        if (!path.isEmpty()) {
            take(pictureOfFile(path));
        }
    }

    void exportTo() {
        QFileDialog dialog(widget(), text("Main", "Picture export"), {}, filesWith(writablePictures()));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setDefaultSuffix(QStringLiteral("png"));
        if (dialog.exec() == QDialog::Accepted) {
            if (const auto written = writeTo(dialog.selectedFiles().front()); !written) {
                say(written.error().sentence);
            }
        }
    }

    /// Never over the document that the picture is of.
    Expected<void> writeTo(const QString& path) {
        if (isSameFile(path, widget()->window()->windowFilePath())) {
            return tl::unexpected(savingFailure(path, {text("Main", "Export onto document"), {}}));
        }
        return pictureFile(held().image, path).and_then([&](const QByteArray& bytes) {
            return writeFile(path, bytes);
        });
    }

    void paste() {
        const QMimeData* data = QApplication::clipboard()->mimeData();
        if (data && PictureView::mayHoldPicture(data)) {
            take(pictureIn(data));
        } else {
            say(text("Main", "Picture nowhere"));
        }
    }

    void copy() {
        if (!view_->pixels().isNull()) {
            QApplication::clipboard()->setImage(view_->pixels());
        }
    }

    void remove() {
        if (!held().image.isNull()) {
            say({});
            state().place(index(), {});
        }
    }

    void showLarge() {
        if (!view_->pixels().isNull()) {
            enlarge(widget(), control().label.text(), view_->pixels());
        }
    }

    PictureView* view_;
    QLabel* message_;
    QPushButton *choose_, *paste_, *enlarge_, *copy_, *export_, *remove_;
};

}  // namespace

std::unique_ptr<FormControl> makePictureControl(FormStateBase& state, int index) {
    return std::make_unique<PictureControl>(state, index);
}

}  // namespace tavrel
