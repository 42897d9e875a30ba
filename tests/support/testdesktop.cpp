#include "support/testdesktop.h"

#include "desktop/defaults.h"

namespace tavrel {

void RecordingAlerts::clear() {
    beeps = 0;
    questions.clear();
    told.clear();
    failures.clear();
    answers_.clear();
}

int RecordingAlerts::ask(const QString& message, const QStringList& buttons) {
    questions.push_back({message, buttons});
    if (whileAsked) {
        whileAsked();
    }
    if (answers_.empty()) {
        ADD_FAILURE() << "unexpected question: " << message.toStdString();
        return static_cast<int>(buttons.size()) - 1;
    }
    const int answer = answers_.front();
    answers_.pop_front();
    return answer;
}

TestDesktop::TestDesktop()
    : preferences(folder_.filePath(QStringLiteral("preferences.ini"))),
      pickLists(preferences),
      desktop_{preferences, notifications, pickLists, alerts, clock} {
    startDesktop(preferences, pickLists);
}

}  // namespace tavrel
