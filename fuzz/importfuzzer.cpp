#include "desktop/alerts.h"
#include "desktop/clock.h"
#include "desktop/picklists.h"
#include "desktop/preferences.h"
#include "interchange/imports.h"

#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Imports arbitrary bytes as one of the three formats into a logbook, and undoes what came in.

namespace {

using namespace tavrel;

struct SilentAlerts : Alerts {
    void beep() override {}
    int ask(const QString&, const QStringList& buttons) override { return static_cast<int>(buttons.size()) - 1; }
    void tell(const QString&) override {}
    void fail(const Failure&) override {}
};

struct Fuzzed {
    QTemporaryDir folder;
    Preferences preferences{folder.filePath(QStringLiteral("settings"))};
    NotificationCentre notifications;
    PickLists pickLists{preferences};
    SilentAlerts alerts;
    Clock clock;
    Desktop desktop{preferences, notifications, pickLists, alerts, clock};
    Carnet carnet{desktop};
};

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Fuzzed fuzzed;
    Carnet& carnet = fuzzed.carnet;
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const auto result = importDives(carnet, bytes, ImportFormat::FUZZED_FORMAT);
    require(carnet.count() == (result ? result->taken : 0));
    for (int row = 0; row < carnet.count(); ++row) {
        const Plongee* dive = &carnet.record(row);
        require(dive->profilProfondeur.size() > 0 && dive->profilProfondeur.size() == dive->GAZ_Flag.size());
        require(dive->o2Mix >= 1 && dive->heMix >= 0 && dive->heMix <= 86);
    }
    carnet.undoStack().undo();
    require(carnet.count() == 0);
    carnet.undoStack().clear();
    return 0;
}
