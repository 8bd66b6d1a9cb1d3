#include "common/CommonFunctions.h"

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <set>

#include "forms/Application.h"
#include "forms/Error.h"
#include "forms/Numbers.h"
#include "forms/Paths.h"
#include "forms/Text.h"

namespace common {
namespace {

constexpr std::int32_t iMaxNameLength = 50;
constexpr std::int32_t iMaxNumberLength = 6;

constexpr char32_t iFirstExtended = 128;
constexpr char32_t iLastExtended = 255;

bool StartsWithDigit(const std::string& sName) {
  return !sName.empty() && sName.front() >= '0' && sName.front() <= '9';
}

/// Why the text can't be a name; empty when it can. The first rule that is broken decides.
std::string NameFault(const std::string& sName, const std::string& sExtraChars) {
  if (StartsWithDigit(sName)) return "Names cannot begin with digits 0-9.";
  if (sName.empty()) return "Names must have at least one character, excluding the extension.";
  if (forms::length(sName) > iMaxNameLength) {
    return "Names cannot exceed " + forms::decimal(iMaxNameLength) + " characters.";
  }
  const std::string sIllegal = ";:,'\\/*?\"<>|" + sExtraChars + "[]";
  std::int32_t iPos = 0;
  if (FindFirstChar(sIllegal, sName, iPos, /*bAddExtended=*/true)) {
    return "Names can not contain the characters " + sIllegal +
           " or any extended ASCII characters.";
  }
  return {};
}

std::string RangeFault(std::int32_t iValue, const ValueRange& range) {
  if (iValue > range.iMax) {
    return " is set too high (The maximum is " + forms::decimal(range.iMax) + ").";
  }
  if (range.iMin == 0) return " cannot be negative.";
  return " is set too low (The minimum is " + forms::decimal(range.iMin) + ").";
}

std::string Remedy(const ValueRange& range) {
  if (!range.bReset) return "Please set another value.";
  return "The value will be reset to " + forms::decimal(range.iResetValue) + ".";
}

bool SortsBefore(const std::string& sOne, const std::string& sOther, bool bNumeric) {
  if (bNumeric) return forms::leadingNumber(sOne) < forms::leadingNumber(sOther);
  return forms::compareIgnoringCase(sOne, sOther) < 0;
}

void RefuseEqualKeys(const std::vector<std::string>& colTexts) {
  std::set<std::string> colKeys;
  for (const std::string& sText : colTexts) {
    if (colKeys.insert(forms::lowerCase(sText)).second) continue;
    throw forms::Error(forms::errors::nameInUse, "The list has two items under the key \"" + sText +
                                                     "\". Give each item a key of its own.");
  }
}

}  // namespace

bool CheckValidName(const std::string& sName, bool bShowMessage, std::string& sMessage,
                    const std::string& sExtraChars) {
  const std::string sFault = NameFault(sName, sExtraChars);
  if (sFault.empty()) return true;
  sMessage = sFault;
  if (bShowMessage) {
    forms::Application::current().messageBox(sFault, forms::Buttons::ok, forms::Icon::information);
  }
  return false;
}

bool FindFirstChar(const std::string& sChars, const std::string& sText, std::int32_t& iPos,
                   bool bAddExtended) {
  const std::u32string chars = forms::toCodePoints(sChars);
  const std::u32string text = forms::toCodePoints(sText);
  const auto found = std::find_if(text.begin(), text.end(), [&](char32_t character) {
    return chars.find(character) != std::u32string::npos ||
           (bAddExtended && character >= iFirstExtended && character <= iLastExtended);
  });
  if (found == text.end()) return false;
  iPos = static_cast<std::int32_t>(found - text.begin()) + 1;
  return true;
}

bool HasOnlyChars(const std::string& sChars, const std::string& sText) {
  return forms::toCodePoints(sText).find_first_not_of(forms::toCodePoints(sChars)) ==
         std::u32string::npos;
}

bool IsAllDigits(const std::string& sText) { return HasOnlyChars("1234567890", sText); }

std::string CheckValueRange(const std::string& sText, const ValueRange& range, bool& bOutOfRange) {
  std::int32_t iValue =
      forms::toInt32(forms::leadingNumber(forms::left(forms::trimmed(sText), iMaxNumberLength)));
  bOutOfRange = iValue < range.iMin || iValue > range.iMax;
  if (bOutOfRange && range.bShowMessage) {
    forms::Application::current().messageBox(range.sLabel + RangeFault(iValue, range) + vbCrLf +
                                             Remedy(range));
  }
  if (bOutOfRange && range.bReset) {
    iValue = range.iResetValue;
    bOutOfRange = false;
  }
  return forms::decimal(iValue);
}

std::vector<std::size_t> SortedOrder(std::vector<std::string> colTexts,
                                     const SortOptions& options) {
  if (!options.sIgnoreText.empty()) {
    for (std::string& sText : colTexts) {
      sText = forms::replacedAll(sText, options.sIgnoreText, "");
    }
  }
  std::vector<std::size_t> colOrder(colTexts.size());
  std::iota(colOrder.begin(), colOrder.end(), std::size_t{0});
  std::stable_sort(colOrder.begin(), colOrder.end(), [&](std::size_t one, std::size_t other) {
    return SortsBefore(colTexts[one], colTexts[other], options.bNumeric);
  });
  if (options.bKeyed) RefuseEqualKeys(colTexts);
  return colOrder;
}

std::int16_t PixelsToTwipsX(std::int16_t iPixels) {
  return forms::toInt16(static_cast<double>(iPixels) *
                        forms::Application::current().desktop().twipsPerPixelX());
}

std::int16_t PixelsToTwipsY(std::int16_t iPixels) {
  return forms::toInt16(static_cast<double>(iPixels) *
                        forms::Application::current().desktop().twipsPerPixelY());
}

bool FileExists(std::string_view sPath) {
  return !sPath.empty() && !sPath.ends_with('\\') && forms::Application::current().findsFile(sPath);
}

bool FolderExists(std::string_view sPath) {
  return !sPath.empty() && forms::Application::current().findsFolder(sPath);
}

void RemoveEmptyFolder(std::string_view sPath) {
  const std::filesystem::path folder = forms::toMachinePath(sPath);
  std::error_code ignored;
  if (std::filesystem::is_directory(folder, ignored)) std::filesystem::remove(folder, ignored);
}

std::string AddBackslash(const std::string& sPath) {
  return sPath.ends_with('\\') ? sPath : sPath + "\\";
}

}  // namespace common
