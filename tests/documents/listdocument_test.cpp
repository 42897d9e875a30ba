#include "documents/listdocument.h"

#include "support/testdesktop.h"

#include <random>

namespace tavrel {

namespace {

struct Entry : Record {
    int number = 0;
};

constexpr RecordLayout entryLayout = recordLayout<Entry>("Entry", 1, {});

struct Entries : ListDocument {
    explicit Entries(Desktop& desktop) : ListDocument(desktop, entryLayout) {}

    Expected<QByteArray> dataRepresentationOfType(const QString&) override { return QByteArray(); }
    Expected<void> loadDataRepresentation(QByteArrayView, const QString&) override { return {}; }
};

// Undo and redo bring back every list that stood there, whatever was sorted between the steps.
TEST(ListDocument, restoresEveryListOfItsSteps) {
    TestDesktop desktop;
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](std::size_t bound) { return bound == 0 ? 0 : random() % bound; };
        Entries entries(desktop.desktop());
        RecordList read;
        for (int number = -3; number < 0; ++number) {
            read.push_back(std::make_shared<const Entry>(Entry{{}, number}));
        }
        entries.replaceList(read);
        std::vector<RecordList> before;  // of each step
        std::vector<RecordList> after;
        for (int turn = 0; turn < 200; ++turn) {
            RecordList list = entries.records();
            auto& stack = entries.undoStack();
            const auto step = static_cast<std::size_t>(stack.index());
            const auto row = static_cast<std::ptrdiff_t>(below(list.size()));
            switch (below(6)) {
                case 0:
                    std::shuffle(list.begin(), list.end(), random);
                    entries.replaceList(list);
                    EXPECT_EQ(entries.records(), list);
                    continue;
                case 1:
                    stack.undo();
                    EXPECT_EQ(entries.records(), step > 0 ? before[step - 1] : list) << seed << ' ' << turn;
                    continue;
                case 2:
                    stack.redo();
                    EXPECT_EQ(entries.records(), step < after.size() ? after[step] : list) << seed << ' ' << turn;
                    continue;
                case 3:
                    list.erase(list.begin() + row, list.begin() + row + static_cast<int>(below(2) % (list.size() + 1)));
                    break;
                case 4:
                    if (!list.empty()) {
                        list[static_cast<std::size_t>(row)] = list.front();  // a record may stand twice
                    }
                    break;
                default:
                    list.insert(list.begin() + row, std::make_shared<const Entry>(Entry{{}, turn}));
                    break;
            }
            before.resize(step);
            after.resize(step);
            before.push_back(entries.records());
            after.push_back(list);
            entries.changeList(QStringLiteral("change"), list);
            EXPECT_EQ(entries.records(), list);
        }
    }
}

}  // namespace

}  // namespace tavrel
