#pragma once

#include "desktop/ui/progresswindow.h"
#include "documents/document.h"

namespace tavrel {

/// Lets a document's progress show while it lives.
class ShownProgress {
public:
    ShownProgress(Document& document, QWidget* parent, const QString& work)
        : document_(document), window_(parent, work) {
        document_.setProgress(window_.progress());
    }
    ~ShownProgress() { document_.setProgress({}); }
    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

    bool wasCancelled() const { return window_.wasCancelled(); }

private:
    Document& document_;
    ProgressWindow window_;
};

}  // namespace tavrel
