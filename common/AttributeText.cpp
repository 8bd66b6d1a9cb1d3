#include "common/AttributeText.h"

#include <algorithm>
#include <string_view>

#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Numbers.h"
#include "forms/Text.h"

namespace common {
namespace {

constexpr std::size_t none = std::u32string::npos;

std::int32_t Count(std::size_t count) { return static_cast<std::int32_t>(count); }

std::u32string LowerCase(std::u32string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char32_t character) { return forms::lowerCase(character); });
  return text;
}

/// A text in which entries are searched; places count from 0.
class AttributeSearch {
 public:
  AttributeSearch(const std::string& sData, const std::string& sKey,
                  const AttributeOptions& options)
      : m_data(forms::toCodePoints(sData)),
        m_folded(LowerCase(m_data)),
        m_key(LowerCase(forms::toCodePoints(sKey))),
        m_separator(forms::toCodePoints(options.sSeparator)),
        m_equals(forms::toCodePoints(options.sEquals)),
        m_bAllowSuffix(options.bAllowSuffix) {}

  bool Find(AttributePlace& place) const {
    for (std::size_t pos = 0; pos < m_data.size(); ++pos) {
      pos = m_folded.find(m_key, pos);
      if (pos == none) return false;
      const std::size_t equals = m_data.find(m_equals, pos + m_key.size());
      if (equals == none) return false;
      std::int16_t iLength = 0;
      if (IsKey(pos, equals, iLength)) return Found(place, pos, equals, iLength);
      if (EndsKey(pos)) {
        place.sFullKey = WholeKey(pos);
        return Found(place, pos, equals, iLength);
      }
    }
    return false;
  }

 private:
  /// Whether the text from `pos` to `equals` is the whole key of an entry.
  bool IsKey(std::size_t pos, std::size_t equals, std::int16_t& iLength) const {
    std::string sName;
    iLength = SplitAttributeKey(forms::fromCodePoints(Part(pos, equals)), sName);
    return (pos == 0 || Part(0, pos).ends_with(m_separator)) &&
           LowerCase(forms::toCodePoints(sName)) == m_key;
  }

  bool EndsKey(std::size_t pos) const {
    return m_bAllowSuffix && Part(pos + m_key.size(), m_data.size()).starts_with(m_equals);
  }

  std::string WholeKey(std::size_t pos) const {
    const std::size_t separator = Part(0, pos).rfind(m_separator);
    const std::size_t start = separator == none ? 0 : separator + m_separator.size();
    return forms::fromCodePoints(Part(start, pos + m_key.size()));
  }

  bool Found(AttributePlace& place, std::size_t pos, std::size_t equals,
             std::int16_t iLength) const {
    const std::size_t value = equals + m_equals.size();
    place.iKeyPos = Count(pos + 1);
    place.iValuePos = Count(value + 1);
    place.iValueLength = iLength != 0 ? iLength : Count(EndOfEntry(value) - value);
    return true;
  }

  std::size_t EndOfEntry(std::size_t value) const {
    return std::min(m_data.find(m_separator, value), m_data.size());
  }

  std::u32string_view Part(std::size_t from, std::size_t to) const {
    return std::u32string_view(m_data).substr(from, to - from);
  }

  std::u32string m_data;
  std::u32string m_folded;
  std::u32string m_key;
  std::u32string m_separator;
  std::u32string m_equals;
  bool m_bAllowSuffix;
};

bool Contains(const std::string& sText, const std::string& sPart) {
  return sText.find(sPart) != std::string::npos;
}

std::string MakeEntry(const std::string& sKey, const std::string& sValue,
                      const AttributeOptions& options) {
  return MakeAttributeKey(sKey, sValue, options) + options.sEquals + sValue;
}

/// The text with the first occurrence of sOld, in any case, replaced.
std::string WithFirstReplaced(const std::string& sText, const std::string& sOld,
                              const std::string& sNew) {
  std::u32string text = forms::toCodePoints(sText);
  const std::u32string old = forms::toCodePoints(sOld);
  const std::size_t at = LowerCase(text).find(LowerCase(old));
  if (at == none) return sText;
  text.replace(at, old.size(), forms::toCodePoints(sNew));
  return forms::fromCodePoints(text);
}

void TellOverflow(const std::string& sOperation, const std::string& sData, const std::string& sKey,
                  const AttributeOptions& options) {
  forms::Application::current().messageBox(
      "Overflow error in " + sOperation + ": " + vbCrLf +  //
          "Data: " + sData + vbCrLf +                      //
          "Key: " + sKey + vbCrLf +                        //
          "Separator: " + options.sSeparator + vbCrLf +    //
          "This error should be reported to Velmondo Technical Support.",
      forms::Buttons::ok, forms::Icon::exclamation, "Overflow Error");
}

/// Numbers are read with "=", whatever stands between keys and values elsewhere.
double Number(const std::string& sData, const std::string& sKey, AttributeOptions options) {
  options.sEquals = AttributeOptions().sEquals;
  return forms::leadingNumber(GetAttributeValue(sData, sKey, options));
}

}  // namespace

bool FindAttribute(const std::string& sData, const std::string& sKey, AttributePlace& place,
                   const AttributeOptions& options) {
  if (sData.empty()) return false;
  place.iKeyPos = place.iValuePos = place.iValueLength = 0;
  return AttributeSearch(sData, sKey, options).Find(place);
}

std::string GetAttributeValue(const std::string& sData, const std::string& sKey,
                              const AttributeOptions& options) {
  AttributePlace place;
  if (!FindAttribute(sData, sKey, place, options)) return {};
  const std::u32string data = forms::toCodePoints(sData);
  return forms::fromCodePoints(data.substr(static_cast<std::size_t>(place.iValuePos) - 1,
                                           static_cast<std::size_t>(place.iValueLength)));
}

std::int16_t GetAttributeValueInt(const std::string& sData, const std::string& sKey,
                                  const AttributeOptions& options) {
  const double value = Number(sData, sKey, options);
  if (forms::fitsInt16(value)) return forms::toInt16(value);
  TellOverflow("GetAttributeValueInt", sData, sKey, options);
  return 0;
}

std::int32_t GetAttributeValueLong(const std::string& sData, const std::string& sKey,
                                   const AttributeOptions& options) {
  const double value = Number(sData, sKey, options);
  if (forms::fitsInt32(value)) return forms::toInt32(value);
  TellOverflow("GetAttributeValueLong", sData, sKey, options);
  return 0;
}

bool GetAttributeValueBool(const std::string& sData, const std::string& sKey) {
  const std::string sValue = forms::upperCase(GetAttributeValue(sData, sKey));
  return sValue == "Y" || sValue == "YES" || sValue == "TRUE";
}

bool SetAttributeValue(std::string& sData, const std::string& sKey, const std::string& sValue,
                       const AttributeOptions& options) {
  AttributePlace place;
  if (FindAttribute(sData, sKey, place, options)) {
    const std::string sOld = GetAttributeValue(sData, sKey, options);
    sData =
        WithFirstReplaced(sData, MakeEntry(sKey, sOld, options), MakeEntry(sKey, sValue, options));
    return true;
  }
  if (!sData.empty() && !sData.ends_with(options.sSeparator)) sData += options.sSeparator;
  sData += MakeEntry(sKey, sValue, options) + options.sSeparator;
  return true;
}

std::string MakeAttributeKey(const std::string& sKey, const std::string& sValue,
                             const AttributeOptions& options) {
  if (!Contains(sValue, options.sEquals) && !Contains(sValue, options.sSeparator)) return sKey;
  return sKey + "(" + forms::decimal(forms::length(sValue)) + ")";
}

std::int16_t SplitAttributeKey(const std::string& sToken, std::string& sName) {
  sName = sToken;
  const std::size_t open = sToken.find('(');
  const std::size_t close = sToken.find(')', std::min(open, sToken.size()));
  if (close == std::string::npos) return 0;
  const std::string sLength = sToken.substr(open + 1, close - open - 1);
  if (sLength.empty() || !IsAllDigits(sLength)) return 0;
  sName = sToken.substr(0, open);
  return forms::toInt16(forms::leadingNumber(sLength));
}

}  // namespace common
