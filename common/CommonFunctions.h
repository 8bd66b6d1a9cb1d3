#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Functions without state that every page of the wizard may need: names, numbers, sorting, files
/// and folders. Paths have backslashes.
namespace common {

/// The end of a line in a message or a comment of several lines.
inline constexpr const char* vbCrLf = "\r\n";

/// Whether the text can be the name of a system. When it can't, sMessage says why, and bShowMessage
/// shows that too; when it can, sMessage stays as it was. sExtraChars are further characters that
/// the name must not contain.
bool CheckValidName(const std::string& sName, bool bShowMessage, std::string& sMessage,
                    const std::string& sExtraChars = {});

/// Looks for the first character of sText that is one of sChars, or with bAddExtended of code 128
/// to 255. iPos is its place, counted from 1, and stays as it was when there is none.
bool FindFirstChar(const std::string& sChars, const std::string& sText, std::int32_t& iPos,
                   bool bAddExtended);

/// Both are True for an empty text.
bool HasOnlyChars(const std::string& sChars, const std::string& sText);
bool IsAllDigits(const std::string& sText);

/// What an entry field takes, and what happens to a number outside.
struct ValueRange {
  std::string sLabel{};  // what a message calls the value
  std::int32_t iMin = 0;
  std::int32_t iMax = 0;
  bool bReset = false;  // a value outside becomes iResetValue
  std::int32_t iResetValue = 0;
  bool bShowMessage = true;
};

/// The whole number that stands in an entry field, as text: the leading number of the first 6
/// characters, 0 without one. bOutOfRange tells that it is outside, which a reset value never is.
std::string CheckValueRange(const std::string& sText, const ValueRange& range, bool& bOutOfRange);

struct SortOptions {
  bool bNumeric = false;      // by the leading number; else as text, ignoring case
  std::string sIgnoreText{};  // taken out of the sort texts before they are compared
  bool bKeyed = false;        // two equal sort texts raise Error nameInUse
};

/// The places of the texts, counted from 0, in the order in which they are sorted; equal ones keep
/// theirs.
std::vector<std::size_t> SortedOrder(std::vector<std::string> colTexts, const SortOptions& options);

/// A new list, sorted by what `property` gives for an item as text.
///
///     SortCollection(colDevices, [](const auto& oDevice) { return oDevice.get_Name(); })
template <typename Item, typename Property>
std::vector<std::shared_ptr<Item>> SortCollection(
    const std::vector<std::shared_ptr<Item>>& colItems, Property&& property,
    const SortOptions& options = {}) {
  std::vector<std::string> colTexts;
  for (const auto& oItem : colItems) colTexts.push_back(property(*oItem));
  std::vector<std::shared_ptr<Item>> colSorted;
  for (const std::size_t place : SortedOrder(std::move(colTexts), options)) {
    colSorted.push_back(colItems[place]);
  }
  return colSorted;
}

std::int16_t PixelsToTwipsX(std::int16_t iPixels);
std::int16_t PixelsToTwipsY(std::int16_t iPixels);

/// False for an empty path and for one that ends in a backslash. `*` and `?` are allowed in the
/// last part.
bool FileExists(std::string_view sPath);
bool FolderExists(std::string_view sPath);

/// A folder that holds anything, or is none, stays.
void RemoveEmptyFolder(std::string_view sPath);

/// The path with a backslash at its end; an empty path gives the backslash alone.
std::string AddBackslash(const std::string& sPath);

}  // namespace common
