#include "answers/Reading.h"

#include <optional>
#include <string>

#include "answers/AnswersShape.h"
#include "answers/Paths.h"
#include "answers/Table.h"
#include "forms/Numbers.h"

namespace answers {
namespace {

using base::Json;

/// What a control holds, as the file says it; nothing: by leaving it out.
std::optional<Json> said(const Shape& shape, const Json& held) {
  switch (shape.kind) {
    case Shape::Kind::object:
      return held.get<bool>() ? Json::object() : Json(nullptr);
    case Shape::Kind::integer:
      return forms::toInt32(forms::leadingNumber(held.get<std::string>()));
    case Shape::Kind::text:
      if (shape.minimum > 0 && held == "") return std::nullopt;
      return held;
    case Shape::Kind::word:
    case Shape::Kind::boolean:
    case Shape::Kind::array:
    case Shape::Kind::anything:
      return held;
  }
  return held;
}

void readPage(const Page& page, Json& answers) {
  for (const Row& row : stepOf(page).rows) {
    const auto held = row.act.read ? row.act.read(page) : std::nullopt;
    const auto value = held ? said(row.type, *held) : std::nullopt;
    if (!value) continue;
    const auto [object, key] = placeOf(answers, row.key);
    (*object)[key] = *value;
  }
}

}  // namespace

Reading readAnswers(const Wizard& wizard) {
  Reading reading;
  while (true) {
    readPage(wizard.page(), reading.answers);
    if (wizard.isAtEnd()) break;
    wizard.next();
  }
  check(reading.answers, answersShape(), reading.unsayable);
  for (const base::Fault& fault : reading.unsayable) takeOut(reading.answers, fault.path);
  return reading;
}

}  // namespace answers
