#include "catalogue/documenttypes.h"

#include "base/texts.h"
#include "logbook/carnet.h"
#include "recordbooks/recordbooks.h"

#include <array>
#include <vector>

namespace tavrel {

namespace {

std::vector<CatalogueType> makeTypes() {
    const BookDescription& logbook = carnetDescription();
    std::vector<CatalogueType> types{{logbook.kind, &logbook,
                                      [](Desktop& desktop) -> std::unique_ptr<BookBase> {
                                          return std::make_unique<Carnet>(desktop, logbookExports());
                                      },
                                      logbookImports(), logbookExports()}};
    for (const auto& book : recordBooks) {
        types.push_back({book().kind, &book(), book().make});
    }
    return types;
}

bool same(const QString& word, const QString& name) {
    return word.compare(name, Qt::CaseInsensitive) == 0;
}

}  // namespace

std::span<const CatalogueType> documentTypes() {
    static const std::vector<CatalogueType> types = makeTypes();
    return types;
}

const CatalogueType* documentTypeMeantBy(const QString& word) {
    for (const CatalogueType& type : documentTypes()) {
        bool meant =
            same(word, QString::fromLatin1(type.name.key)) || same(word, QString::fromLatin1(type.recordClass));
        for (const QString& language : textLanguages()) {
            meant = meant || same(word, type.name.textIn(language));
        }
        if (meant) {
            return &type;
        }
    }
    return nullptr;
}

}  // namespace tavrel
