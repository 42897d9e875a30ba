#pragma once

#include <QLocale>

#include <clocale>

namespace tavrel {

/// While it lives the toolkit and, where one could be built, the C library speak French numbers: 12,5.
class FrenchLocale {
public:
    FrenchLocale() {
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
#ifdef TAVREL_TEST_LOCALES
        qputenv("LOCPATH", TAVREL_TEST_LOCALES);
        std::setlocale(LC_ALL, "fr_FR.UTF-8");
        qunsetenv("LOCPATH");
#endif
    }
    ~FrenchLocale() {
        std::setlocale(LC_ALL, "C.UTF-8");
        QLocale::setDefault(QLocale::c());
    }
    FrenchLocale(const FrenchLocale&) = delete;
    FrenchLocale& operator=(const FrenchLocale&) = delete;
};

}  // namespace tavrel
