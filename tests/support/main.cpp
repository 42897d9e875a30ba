#include "base/texts.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/// Every test begins in English, whatever the one before it chose.
class BeginInEnglish : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { tavrel::setTextLanguage(QStringLiteral("en")); }
};

}  // namespace

// Tests never see the user's settings or locale: a fresh configuration folder, the offscreen platform, the C locale.
int main(int argc, char** argv) {
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    qputenv("XDG_STATE_HOME", home.path().toUtf8());
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new BeginInEnglish);
    return RUN_ALL_TESTS();
}
