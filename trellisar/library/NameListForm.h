#pragma once

#include <array>
#include <string_view>

#include "trellisar/library/ListedDefinition.h"

namespace trellisar {

/// The list's first line begins with it, a checksum of what follows the line is the rest.
constexpr std::string_view nameListHead = "trellisar-device-names\t1\t";

/// The first word of a line that begins a file's part of the list.
constexpr std::string_view nameListFileWord = "file";

/// A letter for each command by which a program turns a device on and off, or moves it.
constexpr std::array<std::pair<char, bool PowerControl::*>, 5> powerLetters{
    {{'1', &PowerControl::on},
     {'0', &PowerControl::off},
     {'d', &PowerControl::down},
     {'u', &PowerControl::up},
     {'2', &PowerControl::secondOff}}};

/// What a line says of a definition behind its form, in its order: a template over a reader or
/// a writer of fields and over where the definition stands.
template <typename Fields, typename AnySpan, typename AnyListing>
void listingFields(Fields& fields, AnySpan& span, AnyListing& listing) {
  fields(span.begin);
  fields(span.length);
  fields(listing.rank);
  fields(listing.controlEntry);
  fields(listing.modelId);
  fields(listing.id);
  fields(listing.type);
  fields(listing.kind);
  fields(listing.slot);
  fields(listing.part);
  fields(listing.connection);
  fields(listing.power);
  fields(listing.name);
  fields(listing.maker);
  fields(listing.category);
}

}  // namespace trellisar
