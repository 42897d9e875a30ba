#include "interchange/imports.h"

#include "base/safefile.h"
#include "desktop/clock.h"
#include "interchange/diveimport.h"
#include "interchange/standard/uddfreading.h"

#include <algorithm>

namespace tavrel {

namespace {

constexpr std::size_t thousandths = 1000;
constexpr std::size_t thousandthsOfParsing = 500;
constexpr std::size_t divesPerProgress = 16;

XmlElement lastGroup(const DiveSource& source, XmlElement root) {
    return (source.groupsIn ? root.last(source.groupsIn) : root).last(source.groupName);
}

std::size_t divesInAllGroups(const DiveSource& source, XmlElement root) {
    std::size_t dives = 0;
    const auto countIn = [&](XmlElement parent) {
        for (const XmlElement group : parent.children(source.groupName)) {
            dives += group.children(source.diveName).count();
        }
    };
    if (!source.groupsIn) {
        countIn(root);
        return dives;
    }
    for (const XmlElement parent : root.children(source.groupsIn)) {
        countIn(parent);
    }
    return dives;
}

/// One import under way.
class Import {
public:
    Import(Carnet& carnet, const Progress& progress) : carnet_(carnet), form_(carnet.desktop()), progress_(progress) {}

    Expected<ImportResult> run(QByteArrayView bytes, ImportFormat format) {
        // Prefixes stay part of the names here; the attributes only tell the version.
        const auto tree =
            XmlTree::parse(bytes,
                           [this](std::size_t done, std::size_t total) {
                               return advance(done * thousandthsOfParsing / std::max<std::size_t>(total, 1));
                           },
                           {true, false});
        if (result_.cancelled) {
            return result_;
        }
        if (!tree) {
            return tl::unexpected(tree.error());
        }
        const DiveSource& source = *importOf(format).source;
        const auto dives = lastGroup(source, tree->root()).children(source.diveName);
        if (dives.count() > mostDives) {
            return failure(text("Main", "XML file beyond limits"));
        }
        takeDives(source, dives);
        result_.leftOut = static_cast<int>(divesInAllGroups(source, tree->root()) - dives.count());
        result_.damage = tree->damage();
        result_.readsBetter = format == ImportFormat::uddf && kindOfRoot(tree->root()) == SourceKind::uddf;
        return result_;
    }

private:
    bool advance(std::size_t done) {
        if (progress_ && !progress_(done, thousandths)) {
            result_.cancelled = true;
        }
        return !result_.cancelled;
    }

    void takeDives(const DiveSource& source, const XmlElement::Children& dives) {
        const std::size_t total = dives.count();
        if (total == 0) {
            return;
        }
        // From here on the form holds imported dives, which must not be stored into a selected one.
        carnet_.deselectAll();
        std::vector<Plongee> taken;
        taken.reserve(total);
        {
            const FormStateBase::Batch batch(form_.state());
            for (const XmlElement dive : dives) {
                const std::size_t done = taken.size();
                if (done % divesPerProgress == 0 &&
                    !advance(thousandthsOfParsing + done * (thousandths - thousandthsOfParsing) / total)) {
                    break;
                }
                if (!takeDive(source, dive, taken)) {
                    break;
                }
            }
        }
        result_.taken = static_cast<int>(taken.size());
        remark(taken);
        if (!taken.empty()) {
            carnet_.appendDives(text("Carnet", "Undo import"), std::move(taken));
        }
        carnet_.updateUI();
    }

    void remark(const std::vector<Plongee>& taken) {
        FoundDives found;
        for (const Plongee& dive : taken) {
            found.dives.emplace_back().dive = dive;
        }
        doubt(found, carnet_.desktop().clock.now());
        markDuplicates(found, carnet_.records());
        for (const FoundDive& it : found.dives) {
            result_.count(it);
        }
    }

    bool takeDive(const DiveSource& source, XmlElement dive, std::vector<Plongee>& taken) {
        form_.blankFields();
        form_.state().setInteger(form_.controls().noPlongeeField,
                                 taken.empty() ? carnet_.nextDiveNumber() : Carnet::numberAfter(taken.back()));
        if (const auto filled = source.fill(dive, form_); !filled) {
            result_.stoppedAt = static_cast<int>(taken.size()) + 1;
            result_.why = filled.error().message();
            return false;
        }
        form_.updateUI();
        taken.push_back(form_.addDiveToList());
        return true;
    }

    Carnet& carnet_;
    DiveForm form_;  ///< its own: what is being typed into the logbook's stays
    const Progress& progress_;
    ImportResult result_;
};

Expected<ImportResult> importFile(Carnet& carnet, const QString& file, ImportFormat format, const Progress& progress) {
    const auto bytes = FileBytes::open(file);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    return importDives(carnet, bytes->bytes(), format, progress).map_error([&](const Failure& reason) {
        return openingFailure(file, reason);
    });
}

}  // namespace

QString damageText(const QString& place) {
    return textWith("Interchange", "Damaged", place);
}

QString ImportResult::message() const {
    QString message = taken == 1 ? text("Carnet", "One dive imported") : textWith("Carnet", "Imported dives", taken);
    if (cancelled) {
        message += u' ' + text("Carnet", "Import cancelled");
    } else if (stoppedAt > 0) {
        message += u' ' + textWith("Carnet", "Import stopped", stoppedAt, why);
    }
    const std::pair<int, Title> remarks[] = {
        {skipped, {"Interchange", "Skipped"}},         {withoutDate, {"Interchange", "Without date"}},
        {implausible, {"Interchange", "Implausible"}}, {twice, {"Interchange", "Twice"}},
        {leftOut, {"Interchange", "Left out"}},
    };
    for (const auto& [number, remark] : remarks) {
        if (number > 0) {
            message += u' ' + textWith(remark, number);
        }
    }
    if (renumbered) {
        message += u' ' + text("Interchange", "Numbered on");
    }
    if (!damage.isEmpty()) {
        message += u' ' + damageText(damage);
    }
    if (readsBetter) {
        message += u' ' + text("Interchange", "Reads better");
    }
    return message;
}

void ImportResult::count(const FoundDive& dive) {
    withoutDate += dive.has(Doubt::noDate) ? 1 : 0;
    implausible += dive.has(Doubt::tooDeep) ? 1 : 0;
    twice += dive.duplicate ? 1 : 0;
}

Expected<ImportResult> importDives(Carnet& carnet, QByteArrayView bytes, ImportFormat format,
                                   const Progress& progress) {
    return Import(carnet, progress).run(bytes, format);
}

Expected<ImportResult> readUDCF(Carnet& carnet, const QString& file, const Progress& progress) {
    return importFile(carnet, file, ImportFormat::udcf, progress);
}

Expected<ImportResult> readUDDF(Carnet& carnet, const QString& file, const Progress& progress) {
    return importFile(carnet, file, ImportFormat::uddf, progress);
}

Expected<ImportResult> readFromiPhoneFile(Carnet& carnet, const QString& file, const Progress& progress) {
    return importFile(carnet, file, ImportFormat::handheld, progress);
}

std::span<const LogbookImport> logbookImports() {
    static const LogbookImport imports[] = {
        {ImportFormat::udcf,
         SourceKind::udcf,
         &udcfSource,
         "udcf",
         {"Carnet", "Import UDCF"},
         {"Carnet", "UDCF files"},
         "udcf",
         {"Carnet", "Menu import UDCF"},
         "importUDCF",
         readUDCF},
        {ImportFormat::uddf,
         SourceKind::olderUddf,
         &uddfSource,
         "uddf",
         {"Carnet", "Import UDDF"},
         {"Carnet", "UDDF files"},
         "uddf",
         {"Carnet", "Menu import UDDF"},
         "importUDDF",
         readUDDF},
        {ImportFormat::handheld,
         SourceKind::handheld,
         &handheldSource,
         "handheld",
         {"Carnet", "Import handheld"},
         {"Carnet", "Handheld files"},
         nullptr,
         {"Carnet", "Menu import handheld"},
         nullptr,
         readFromiPhoneFile},
    };
    return imports;
}

const LogbookImport& importOf(ImportFormat format) {
    const auto imports = logbookImports();
    return *std::find_if(imports.begin(), imports.end(),
                         [format](const LogbookImport& each) { return each.format == format; });
}

}  // namespace tavrel
