// Claims on folders and devices: one holder at a time, by whatever name, and who it is.
#include "machine/claim.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/scratch.h"

namespace evac {
namespace {

namespace fs = std::filesystem;

TEST(Claim, HasOneHolderWhateverNameThePathHasAndEndsWithIt) {
  Scratch scratch;
  fs::create_directory(scratch.path / "data");
  fs::create_directory_symlink(scratch.path / "data", scratch.path / "other name");
  {
    Claim first, second;
    ASSERT_FALSE(Claim::take(scratch.path / "data", first));
    const auto holder = Claim::take(scratch.path / "other name", second);
    ASSERT_TRUE(holder);
    EXPECT_EQ(holder->process, ::getpid());
    EXPECT_EQ(holder->program, "console_tests");
    EXPECT_TRUE(words_of(*holder).starts_with("console_tests (процесс ")) << words_of(*holder);
  }
  Claim later;
  EXPECT_FALSE(Claim::take(scratch.path / "other name", later));
  Claim none;
  EXPECT_EQ(words_of(Claim::take(scratch.path / "missing", none).value()), "другая программа");
}

}  // namespace
}  // namespace evac
