#include "answers/ErrorWords.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <new>
#include <system_error>
#include <typeinfo>

#include "host/Error.h"

namespace answers {
namespace {

TEST(ErrorWords, areThoseOfAUser) {
  EXPECT_EQ(wordsOf(host::Error(1, "The folder is gone.")), "The folder is gone.");
  EXPECT_EQ(wordsOf(std::bad_alloc()).find("There is not enough memory."), 0U);
  EXPECT_EQ(wordsOf(std::bad_cast()),
            "The program has a fault of its own, and could not go on: std::bad_cast.");
  EXPECT_EQ(wordsOf(std::system_error(EAGAIN, std::system_category())),
            "The system does not allow it: Resource temporarily unavailable.");
  const std::string missing = "/there is no such folder";
  try {
    std::filesystem::create_directory(missing + "/room");
    FAIL();
  } catch (const std::exception& error) {
    EXPECT_EQ(wordsOf(error), "\"" + missing + "/room\": No such file or directory.");
  }
}

}  // namespace
}  // namespace answers
