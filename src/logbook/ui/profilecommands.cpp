#include "logbook/ui/profilecommands.h"

#include "book/ui/bookeditwindow.h"
#include "desktop/ui/bringtofront.h"
#include "documents/ui/madewindows.h"
#include "logbook/diveprofile.h"
#include "logbook/ui/logbookwindow.h"
#include "profile/ui/profileeditorwindow.h"
#include "profile/ui/profileview.h"
#include "profile/ui/profilewindow.h"

#include <QEvent>
#include <QLayout>

namespace tavrel {

namespace {

qint32 numberIn(const DiveForm& form) {
    return form.state().integer(form.controls().noPlongeeField);
}

}  // namespace

ProfileCommands::ProfileCommands(Carnet& carnet, LogbookWindow& window, Desktop& desktop)
    : QObject(&window), carnet_(carnet), desktop_(desktop) {
    window.provideCommand(QStringLiteral("profil"), [this] { displayProfilWindow(); });
    window.provideCommand(QStringLiteral("profilData"), [this] { profilInfo(); });
    connect(&window, &LogbookWindow::editWindowMade, this, &ProfileCommands::placeFormView);
    const FormStateBase& state = carnet.form().state();
    connect(&state, &FormStateBase::refreshed, this, &ProfileCommands::scheduleRefresh);
    connect(&state, &FormStateBase::controlChanged, this, &ProfileCommands::scheduleRefresh);
    connect(&carnet, &Carnet::selectionChanged, this, &ProfileCommands::scheduleRefresh);
    connect(&carnet, &Carnet::listChanged, this, &ProfileCommands::scheduleRefresh);
    connect(&carnet, &Carnet::profileRedrawRequested, this, &ProfileCommands::scheduleRefresh);
}

ProfileCommands::~ProfileCommands() = default;

void ProfileCommands::placeFormView(BookEditWindow& window) {
    formView_ = new ProfileView;
    QWidget* room = window.pages().widget(carnet_.form().controls().profilView.index);
    room->layout()->addWidget(formView_);
    formView_->installEventFilter(this);
}

bool ProfileCommands::eventFilter(QObject* watched, QEvent* event) {
    if (watched == formView_ && event->type() == QEvent::Show) {
        scheduleRefresh();
    }
    return QObject::eventFilter(watched, event);
}

ProfileWindow& ProfileCommands::profileWindow() {
    if (!profileWindow_) {
        profileWindow_ = std::make_unique<ProfileWindow>(desktop_);
    }
    return *profileWindow_;
}

ProfileEditorWindow& ProfileCommands::editorWindow() {
    if (!editorWindow_) {
        editorWindow_ = std::make_unique<ProfileEditorWindow>(desktop_);
        connect(editorWindow_.get(), &ProfileEditorWindow::importRequested, this, [this](const SeriesTexts& texts) {
            importProfil(carnet_, texts);
            editorWindow_->updateProfilInfo(carnet_.form().profile(), numberIn(carnet_.form()));
        });
    }
    return *editorWindow_;
}

void ProfileCommands::displayProfilWindow() {
    bringToFront(&profileWindow());
    refresh();
}

void ProfileCommands::profilInfo() {
    if (editorWindow().isVisible()) {
        refresh();  // what was typed stays
    } else {
        editorWindow_->updateProfilInfo(carnet_.form().profile(), numberIn(carnet_.form()));
    }
    bringToFront(editorWindow_.get());
}

bool ProfileCommands::settleEditor() {
    return !editorWindow_ || editorWindow_->settle();
}

void ProfileCommands::discardEditor() {
    if (editorWindow_) {
        editorWindow_->discard();
    }
}

QList<QWidget*> ProfileCommands::windows() const {
    return madeWindows({profileWindow_.get(), editorWindow_.get()});
}

void ProfileCommands::scheduleRefresh() {
    // A step to another dive changes many controls; the windows follow once.
    if (!refreshScheduled_) {
        refreshScheduled_ = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                refreshScheduled_ = false;
                refresh();
            },
            Qt::QueuedConnection);
    }
}

void ProfileCommands::refresh() {
    const qint32 number = numberIn(carnet_.form());
    const auto show = [&](auto* shown) {
        if (shown && shown->isVisible()) {
            shown->setProfile(profileDiveOf(carnet_.form()), ProfileStyle::read(desktop_.preferences),
                              profileTitle(number));
        }
    };
    show(profileWindow_.get());
    show(formView_);
    if (editorWindow_ && editorWindow_->isVisible()) {
        editorWindow_->followDive(carnet_.form().profile(), number);
    }
}

}  // namespace tavrel
