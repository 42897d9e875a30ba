#pragma once

#include "app/documenttypes.h"

namespace tavrel {

class FileDialogs;

/// The types of documents that the application has. Their windows choose files to import in the dialogs.
DocumentTypes tavrelDocuments(FileDialogs& fileDialogs);

}  // namespace tavrel
