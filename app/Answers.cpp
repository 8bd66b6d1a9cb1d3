#include "app/Answers.h"

#include <utility>

#include "app/AnswersShape.h"
#include "app/ExitStatus.h"
#include "app/RunEnded.h"
#include "app/StandardStreams.h"
#include "host/Error.h"
#include "trellisar/FileIO.h"

namespace app {
namespace {

using trellisar::Json;

constexpr trellisar::JsonLimits limits{.bytes = 1U << 20U, .depth = 10, .keysOfObject = 100};

/// One byte more than is allowed is enough to see that there is too much.
std::string contentOf(const std::filesystem::path& file) {
  return file == standardInput ? readInput(limits.bytes + 1) : trellisar::readFile(file);
}

}  // namespace

Answers::Answers(Json json) : json_(std::move(json)) { check(json_, answersShape()); }

Answers Answers::fromFile(const std::filesystem::path& file) {
  try {
    return Answers(trellisar::parseJson(contentOf(file), file.string(), limits));
  } catch (const host::Error& error) {
    throw RunEnded(exitStatus::wrongInput, error.description());
  }
}

const Json* Answers::find(std::string_view path) const {
  const Json* value = &json_;
  while (!path.empty()) {
    const std::size_t point = path.find('.');
    const auto member = value->find(path.substr(0, point));
    if (member == value->end()) return nullptr;
    value = &*member;
    path = point == std::string_view::npos ? std::string_view() : path.substr(point + 1);
  }
  return value;
}

void Answers::setFolder(const std::filesystem::path& folder) { json_["folder"] = folder.string(); }

}  // namespace app
