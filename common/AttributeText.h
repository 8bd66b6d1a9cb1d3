#pragma once

#include <cstdint>
#include <string>

/// The text in which settings are stored: entries of a key, "=", a value and ";". A value that
/// contains a separator has its length in parentheses behind the key, so that a reader takes that
/// many characters whatever they are:
///
///     Delay=30;Name(9)=a;b=c;def;
///
/// The last entry of a text may lack its ";". Keys are matched without regard to case. Positions
/// and lengths count characters, positions from 1; 0 stands for none.
namespace common {

struct AttributeOptions {
  std::string sSeparator = ";";
  std::string sEquals = "=";
  /// A longer key counts as well when it ends with the one that is looked for.
  bool bAllowSuffix = true;
};

/// Where an entry stands.
struct AttributePlace {
  std::int32_t iKeyPos = 0;  // of the text that was looked for, also inside a longer key
  std::int32_t iValuePos = 0;
  std::int32_t iValueLength = 0;
  std::string sFullKey{};  // the longer key; stays as it was when the key was found as it is
};

/// Looks for the first entry of the key. An empty text leaves `place` as it was.
bool FindAttribute(const std::string& sData, const std::string& sKey, AttributePlace& place,
                   const AttributeOptions& options = {});

/// Empty when the key is absent.
std::string GetAttributeValue(const std::string& sData, const std::string& sKey,
                              const AttributeOptions& options = {});

/// The leading number of the value, rounded; 0 when the key is absent or there is none. A number
/// that its type can't hold is told in a message and gives 0.
std::int16_t GetAttributeValueInt(const std::string& sData, const std::string& sKey,
                                  const AttributeOptions& options = {});
std::int32_t GetAttributeValueLong(const std::string& sData, const std::string& sKey,
                                   const AttributeOptions& options = {});

/// True for Y, YES and TRUE in any case, and False for all else.
bool GetAttributeValueBool(const std::string& sData, const std::string& sKey);

/// Gives the key the value in place, or appends an entry. True.
bool SetAttributeValue(std::string& sData, const std::string& sKey, const std::string& sValue,
                       const AttributeOptions& options = {});

/// The key as it is written before the value: with its length where the value contains a separator.
std::string MakeAttributeKey(const std::string& sKey, const std::string& sValue,
                             const AttributeOptions& options = {});

/// Takes apart a key as it is written: sName is the key itself, the result the value's length, 0
/// when none is given.
std::int16_t SplitAttributeKey(const std::string& sToken, std::string& sName);

}  // namespace common
