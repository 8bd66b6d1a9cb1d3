#include "trellisar/operations/Session.h"

#include "host/Error.h"

namespace trellisar {

const DocumentPtr& Session::data() const {
  if (document) return document->open();
  throw host::Error(host::errDocumentClosed, "No system is open.");
}

}  // namespace trellisar
