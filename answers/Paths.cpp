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

bool isAnswered(const Json& answers, const std::string& path) {
  std::string pointer = "/";
  for (const char c : path) {
    if (c != ']') pointer += c == '.' || c == '[' ? '/' : c;
  }
  return answers.contains(Json::json_pointer(pointer));
}

bool takeOut(Json& answers, const std::string& path) {
  const std::string keys = path.substr(0, path.find('['));
  const auto point = keys.find('.');
  const std::string key = keys.substr(0, point);
  if (!answers.is_object() || !answers.contains(key)) return false;
  if (point == std::string::npos) return answers.erase(key) > 0;
  const std::string inside = keys.substr(point + 1);
  const bool isLast = inside.find('.') == std::string::npos;
  if (isLast && !answers[key].contains(inside)) return answers.erase(key) > 0;
  return takeOut(answers[key], inside);
}

}  // namespace answers
