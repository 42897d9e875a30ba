#pragma once

#include <QString>
#include <tl/expected.hpp>

namespace tavrel {

/// Why something could not be done: a sentence for the user, and where or what exactly (file, offset, library's word).
struct Failure {
    QString sentence;
    QString detail;

    /// Sentence and detail as one text, the detail in parentheses.
    QString message() const {
        return detail.isEmpty() ? sentence : sentence + QStringLiteral(" (") + detail + QStringLiteral(")");
    }
};

template <class T>
using Expected = tl::expected<T, Failure>;

inline tl::unexpected<Failure> failure(QString sentence, QString detail = {}) {
    return tl::unexpected<Failure>(Failure{std::move(sentence), std::move(detail)});
}

}  // namespace tavrel
