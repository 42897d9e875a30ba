#include "app/appdelegate.h"
#include "app/endsignals.h"
#include "app/instanceserver.h"
#include "app/mydocumentcontroller.h"
#include "app/tavreldocuments.h"
#include "app/windowmenus.h"
#include "base/localzone.h"
#include "base/paths.h"
#include "desktop/clock.h"
#include "desktop/defaults.h"
#include "desktop/notificationcentre.h"
#include "desktop/picklists.h"
#include "desktop/preferences.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/dialogalerts.h"
#include "desktop/ui/filedialogs.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/readablecolour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSessionManager>

#include <cstdio>
#include <memory>

namespace {

using namespace tavrel;

constexpr int failed = 1;
constexpr int wrongUsage = 2;

void describe(QCommandLineParser& parser) {
    parser.setApplicationDescription(text("Main", "Command line description"));
    parser.addPositionalArgument(QStringLiteral("FILE"), text("Main", "Command line files"), QStringLiteral("[FILE…]"));
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, text("Main", "Command line help")});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")}, text("Main", "Command line version")});
}

void print(std::FILE* out, const QString& words) {
    std::fputs(words.toLocal8Bit().constData(), out);
}

/// --help and --version are answered without a display.
bool answersWithoutWindows(int argc, char** argv) {
    QStringList arguments;
    for (int place = 0; place < argc; ++place) {
        arguments.append(QString::fromLocal8Bit(argv[place]));
    }
    const auto has = [&](const char* option) { return arguments.contains(QLatin1StringView(option)); };
    if (has("--version") || has("-v")) {
        print(stdout, QStringLiteral("tavrel %1\n").arg(QStringLiteral(TAVREL_VERSION)));
        return true;
    }
    if (has("--help") || has("-h")) {
        const QCoreApplication application(argc, argv);
        setTextLanguage();
        QCommandLineParser parser;
        describe(parser);
        print(stdout, parser.helpText());
        return true;
    }
    return false;
}

void nameApplication() {
    QApplication::setApplicationName(QStringLiteral("tavrel"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tavrel"));
    QApplication::setApplicationVersion(QStringLiteral(TAVREL_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tavrel"));
    QApplication::setWindowIcon(iconNamed(QStringLiteral("tavrel")));
}

/// The files of the command line as absolute paths, for they may be opened by a program started elsewhere.
QStringList absolutePaths(const QStringList& files) {
    QStringList paths;
    for (const QString& file : files) {
        paths.append(absolutePath(file));
    }
    return paths;
}

void openHandedOver(MyDocumentController& documents, const QStringList& files) {
    const QList<DocumentWindow*> windows = documents.windows();
    if (!files.isEmpty()) {
        documents.openFiles(files);
    } else if (windows.isEmpty()) {
        documents.applicationOpenUntitledFile();
    } else {
        bringToFront(windows.back());
    }
}

}  // namespace

int main(int argc, char** argv) {
    tavrel::readLocalZoneOnce();
    if (answersWithoutWindows(argc, argv)) {
        return 0;
    }
    QApplication application(argc, argv);
    setTextLanguage();
    nameApplication();
    keepPlaceholdersReadable();
    QCommandLineParser parser;
    describe(parser);
    QStringList arguments;
    for (int place = 0; place < argc; ++place) {
        arguments.append(pathFromBytes(QByteArrayView(argv[place])));
    }
    if (!parser.parse(arguments)) {
        print(stderr, parser.errorText() + u'\n');
        return wrongUsage;
    }
    const QStringList files = absolutePaths(parser.positionalArguments());
    InstanceServer instances;
    using HandedOver = InstanceServer::HandedOver;
    // Of two that start at the same moment, the one that does not get to listen hands over after all.
    auto handedOver = instances.handOver(files);
    if (handedOver == HandedOver::toNobody && !instances.listen()) {
        handedOver = instances.handOver(files);
    }
    if (handedOver == HandedOver::taken) {
        return 0;
    }
    if (handedOver == HandedOver::busy) {
        // A second program would open the same files.
        const Failure busy{text("Main", "Program is busy"), {}};
        print(stderr, busy.message() + u'\n');
        DialogAlerts().fail(busy);
        return failed;
    }

    Preferences preferences;
    PickLists pickLists(preferences);
    startDesktop(preferences, pickLists);
    NotificationCentre notifications;
    DialogAlerts alerts;
    const Clock clock;
    Desktop desktop{preferences, notifications, pickLists, alerts, clock};
    SystemFileDialogs fileDialogs;
    const QString state = stateFolder();
    MyDocumentController documents(desktop, fileDialogs, tavrelDocuments(fileDialogs),
                                   state.isEmpty() ? QString() : state + QStringLiteral("/journal"));
    AppDelegate delegate(desktop);
    delegate.countUsageWith([&](PickList list) { return documents.pickListUsage(list); });
    QObject::connect(&documents, &MyDocumentController::windowOpened, &documents,
                     [&](DocumentWindow* window) { new WindowMenus(documents, delegate, *window); });
    QObject::connect(&instances, &InstanceServer::handedOver, &documents,
                     [&](const QStringList& others) { openHandedOver(documents, others); });
    // Leaving the session asks as closing does.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &documents, [&](QSessionManager& session) {
        // Whoever does not answer in time is ended.
        documents.keepUnsaved();
        if (session.allowsInteraction() && !documents.mayQuit()) {
            session.cancel();
        }
        session.release();
    });
    // Nobody can be asked: the next start offers what was not saved.
    EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::received, &documents, [&](int signal) {
        documents.keepUnsaved();
        QApplication::exit(128 + signal);
    });

    // Once events are seen to: a signal that comes while the start tells or asks something ends the program, too.
    const auto begin = [&] {
        files.isEmpty() ? static_cast<void>(documents.applicationOpenUntitledFile()) : documents.launch(files);
        QMetaObject::invokeMethod(&documents, &MyDocumentController::offerUnsaved, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&documents, begin, Qt::QueuedConnection);
    return QApplication::exec();
}
