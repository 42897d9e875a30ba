#include "interchange/standard/gasmix.h"

#include "dives/divecodes.h"

#include <QRegularExpression>

#include <cmath>

namespace tavrel {

namespace {

/// Whole percent of a share.
qint32 percent(double share) {
    const double hundredths = share > 1.0 ? share : share * 100;
    return std::isfinite(hundredths) && hundredths >= 0 && hundredths <= 100
               ? static_cast<qint32>(std::lround(hundredths))
               : 0;
}

qint32 kindOf(qint32 oxygen, qint32 helium, const QString& name) {
    if (helium > 0) {
        const auto named = [&](const char* word) { return name.startsWith(QLatin1String(word), Qt::CaseInsensitive); };
        if (oxygen + helium >= 100) {
            return Gas::heliox;
        }
        return named("triox") ? Gas::triox : named("heliair") ? Gas::heliair : Gas::trimix;
    }
    return oxygen == 21 ? Gas::air : Gas::nitrox;
}

}  // namespace

GasMix gasMix(double oxygen, double helium, const QString& name) {
    GasMix mix;
    mix.oxygen = percent(oxygen);
    mix.helium = percent(helium);
    if (mix.oxygen < 1) {
        mix.oxygen = 21;
    }
    if (mix.oxygen + mix.helium > 100) {
        mix.helium = 0;
    }
    mix.kind = kindOf(mix.oxygen, mix.helium, name);
    return mix;
}

GasMix gasMixNamed(const QString& name) {
    static const QRegularExpression twoShares(QStringLiteral(R"((\d{1,2})\s*/\s*(\d{1,2}))"));
    static const QRegularExpression oneShare(QStringLiteral(R"((?:ean|ean[ x]|nx|nitrox|nitrox |eanx)\s*-?(\d{2,3}))"),
                                             QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression pure(QStringLiteral(R"(^\s*(o2|oxygen|sauerstoff|oxyg.ne)\b)"),
                                         QRegularExpression::CaseInsensitiveOption);
    if (const auto match = twoShares.match(name); match.hasMatch()) {
        return gasMix(match.captured(1).toDouble() / 100, match.captured(2).toDouble() / 100, name);
    }
    if (const auto match = oneShare.match(name); match.hasMatch()) {
        return gasMix(match.captured(1).toDouble() / 100, 0, name);
    }
    return pure.match(name).hasMatch() ? gasMix(1.0, 0, name) : GasMix();
}

QString gasName(const GasMix& mix) {
    const auto both = [&](const char* word) {
        return QStringLiteral("%1 %2/%3").arg(QLatin1String(word)).arg(mix.oxygen).arg(mix.helium);
    };
    switch (mix.kind) {
        case Gas::air:
            return QStringLiteral("Air");
        case Gas::nitrox:
            return QStringLiteral("EAN%1").arg(mix.oxygen);
        case Gas::heliox:
            return both("Heliox");
        case Gas::triox:
            return both("Triox");
        case Gas::heliair:
            return both("Heliair");
        default:
            return both("Trimix");
    }
}

}  // namespace tavrel
