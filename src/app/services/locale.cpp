#include "app/services/locale.h"

#include <clocale>
#include <string_view>

namespace vantrel {

void SettleLocale() {
  // The toolkit keeps the plain locale, in which a home folder with an accent can't be read.
  const char* encoding = std::setlocale(LC_CTYPE, "");
  const bool plain =
      !encoding || std::string_view(encoding) == "C" || std::string_view(encoding) == "POSIX";
  if (plain) std::setlocale(LC_CTYPE, "C.UTF-8");
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace vantrel
