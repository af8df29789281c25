// A claim on a folder or a device, so that no second program works on it, whoever the user is and whatever
// name it has there. Gone with the process that holds it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace evac {

// Who holds a claim, as the system's table of locks tells.
struct ClaimHolder {
  int process = 0;  // 0 when that is not known
  std::string program, user;
};
// "evac-console (процесс 4711, пользователь ivan)".
std::string words_of(const ClaimHolder& holder);

class Claim {
 public:
  Claim() = default;
  // Claims what that path leads to. When another process has it, tells who.
  static std::optional<ClaimHolder> take(const std::filesystem::path& path, Claim& claim);
  // The same for what is open already; the claim lives as long as the descriptor.
  static std::optional<ClaimHolder> take(int descriptor);
  ~Claim();
  Claim(Claim&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Claim& operator=(Claim&& other) noexcept;

 private:
  explicit Claim(int descriptor) : descriptor_(descriptor) {}
  int descriptor_ = -1;
};

}  // namespace evac
