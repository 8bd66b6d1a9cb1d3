#pragma once

#include <archive.h>
#include <archive_entry.h>
#include <locale.h>

#include <memory>
#include <new>

namespace trellisar {

struct ArchiveFreer {
  void operator()(struct archive* handle) const { archive_free(handle); }
  void operator()(struct archive_entry* entry) const { archive_entry_free(entry); }
};

using ArchiveHandle = std::unique_ptr<struct archive, ArchiveFreer>;
using ArchiveEntry = std::unique_ptr<struct archive_entry, ArchiveFreer>;

/// The archive library takes and gives names in the thread's locale; while this lives it is UTF-8,
/// whatever the user's is.
class Utf8Names {
 public:
  Utf8Names() : locale_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (locale_) old_ = uselocale(locale_);
  }
  ~Utf8Names() {
    if (!locale_) return;
    uselocale(old_);
    freelocale(locale_);
  }
  Utf8Names(const Utf8Names&) = delete;
  Utf8Names& operator=(const Utf8Names&) = delete;

 private:
  locale_t locale_;
  locale_t old_ = nullptr;
};

}  // namespace trellisar
