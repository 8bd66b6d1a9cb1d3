#include "answers/Paths.h"

namespace answers {

using base::Json;

std::pair<Json*, std::string> placeOf(Json& answers, std::string path) {
  Json* object = &answers;
  for (auto point = path.find('.'); point != std::string::npos; point = path.find('.')) {
    object = &(*object)[path.substr(0, point)];
    path.erase(0, point + 1);
  }
  return {object, path};
}

bool takeOut(Json& answers, const std::string& path) {
  const auto [object, key] = placeOf(answers, path.substr(0, path.find('[')));
  if (object->is_object() && object->erase(key) > 0) return true;
  const auto point = path.rfind('.');
  return point != std::string::npos && takeOut(answers, path.substr(0, point));
}

}  // namespace answers
