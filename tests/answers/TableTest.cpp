
#include <gtest/gtest.h>

#include <cstdlib>

#include "answers/AnswersDocument.h"
#include "base/FileIO.h"

namespace answers {
namespace {

namespace fs = std::filesystem;

TEST(Table, isWhatTheDocumentSays) {
  const fs::path file = fs::path(ORLENA_SOURCE_FOLDER) / "docs/answers.md";
  const std::string document = base::readFile(file);
  const std::size_t start = document.find("| key |");
  const std::size_t end = document.find("\n\n", start) + 1;
  const std::string current =
      document.substr(0, start) + documentedAnswers() + document.substr(end);
  if (std::getenv("ORLENA_RENEW_DOCUMENTS")) base::replaceFile(file, current);
  EXPECT_EQ(base::readFile(file), current) << "tools/renew-documents writes it anew";
}

}  // namespace
}  // namespace answers
