#include "receiver/Store.h"

#include <sodium.h>

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

#include "base/Digest.h"
#include "receiver/Error.h"

namespace receiver {
namespace {

constexpr mode_t ownerOnly = 0600;
constexpr std::string_view leftover = ".saving";
constexpr std::size_t maxFile = Frame::headerSize + Frame::maxPayload + limits::programSize;

struct StoredProgram {
  AnnounceProgram announced;
  std::string bytes;
};

/// The file is the frame that announced the program, and the program's bytes behind it.
StoredProgram readProgramFile(const std::filesystem::path& path) {
  std::string bytes = base::readFile(path, maxFile);
  const auto header = Frame::decodeHeader(std::string_view(bytes).substr(0, Frame::headerSize));
  const std::size_t end = Frame::headerSize + header.length;
  const Message message =
      readMessage(Frame::decode(std::string_view(bytes).substr(0, std::min(end, bytes.size()))));
  const auto* announced = std::get_if<AnnounceProgram>(&message);
  if (announced == nullptr) throw Error("It does not begin with a program's description.");
  bytes.erase(0, end);
  if (bytes.size() != announced->program.size ||
      base::Digest::of(bytes) != announced->program.sha256) {
    throw Error("Its bytes are not those that were sent.");
  }
  return {*announced, std::move(bytes)};
}

std::string hashOf(const std::string& password) {
  std::array<char, crypto_pwhash_STRBYTES> hash{};
  if (crypto_pwhash_str(hash.data(), password.data(), password.size(),
                        crypto_pwhash_OPSLIMIT_INTERACTIVE,
                        crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0) {
    throw Error("There is not enough memory to keep the password. Try again later.");
  }
  return hash.data();
}

bool isPasswordHash(const std::string& text) {
  return text.size() < crypto_pwhash_STRBYTES &&
         crypto_pwhash_str_needs_rehash(text.c_str(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                                        crypto_pwhash_MEMLIMIT_INTERACTIVE) >= 0;
}

}  // namespace

struct Store::Upload::State {
  AnnounceProgram announced;
  base::OutputFile file;
  base::Digest digest;
  std::uint64_t received = 0;
};

Store::Upload::Upload(Store& store, AnnounceProgram announced, const std::filesystem::path& file)
    : store_(store),
      state_(new State{std::move(announced), {file, store.programFile(), ownerOnly}, {}}) {
  state_->file.write(writeMessage(state_->announced).encode());
}

Store::Upload::~Upload() = default;

void Store::Upload::add(std::string_view bytes) {
  if (bytes.size() > state_->announced.program.size - state_->received) {
    throw Error("More bytes came than were announced: the program has " +
                std::to_string(state_->announced.program.size) + ".");
  }
  state_->file.write(bytes);
  state_->digest.add(bytes);
  state_->received += bytes.size();
}

void Store::Upload::commit() {
  const ProgramInfo& program = state_->announced.program;
  if (state_->received != program.size) {
    throw Error("The program is not complete: " + std::to_string(state_->received) + " of " +
                std::to_string(program.size) + " bytes came.");
  }
  if (state_->digest.finish() != program.sha256) {
    throw Error("The program was changed on its way: its hash is another one. Send it again.");
  }
  store_.take(state_->file, state_->announced);
}

Store::Store(std::filesystem::path folder) : folder_(std::move(folder)) {
  base::prepareSodium();
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  if (!std::filesystem::is_directory(folder_)) {
    throw Error("The folder " + folder_.string() + " cannot be made: " + error.message() + ".");
  }
  lock_.emplace(folder_, base::FolderLock::IfTaken::giveUp);
  if (!lock_->isHeld()) {
    const std::string path = folder_.string();
    throw Error("The folder " + path +
                " belongs to another receiver that runs. Give each receiver a folder of its own.");
  }
  removeLeftovers();
  loadProgram();
  loadPassword();
}

std::filesystem::path Store::programFile() const { return folder_ / "program"; }

std::filesystem::path Store::passwordFile() const { return folder_ / "password"; }

void Store::removeLeftovers() {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder_, error)) {
    if (entry.path().extension() == leftover) base::removeFile(entry.path());
  }
}

void Store::loadProgram() {
  if (!std::filesystem::exists(programFile())) return;
  try {
    program_ = readProgramFile(programFile()).announced;
  } catch (const Error& damage) {
    const std::filesystem::path aside = folder_ / "program.damaged";
    std::error_code error;
    std::filesystem::rename(programFile(), aside, error);
    if (error) {
      throw Error("The stored program is damaged and cannot be set aside as " + aside.string() +
                  ": " + error.message() + ".");
    }
    warning_ += "The stored program is damaged and was set aside as " + aside.string() + ". " +
                damage.what() + " Send the program again. ";
  }
}

void Store::loadPassword() {
  if (!std::filesystem::exists(passwordFile())) return;
  passwordHash_ = base::readFile(passwordFile(), crypto_pwhash_STRBYTES);
  if (isPasswordHash(passwordHash_)) return;
  // It was set once, so what it protects must not lie open.
  passwordHash_ = "damaged";
  warning_ += "The stored password is damaged and none is right. Set it again. ";
}

Holdings Store::holdings() const {
  const std::lock_guard state(state_);
  Holdings holdings;
  if (program_) {
    holdings.program = program_->program;
    holdings.properties = program_->properties;
  }
  holdings.passwordSet = !passwordHash_.empty();
  return holdings;
}

std::string Store::program() const {
  const std::lock_guard change(change_);
  if (!program_) throw Error("The receiver holds no program.");
  return readProgramFile(programFile()).bytes;
}

std::unique_ptr<Store::Upload> Store::begin(AnnounceProgram announced) {
  std::uint64_t number = 0;
  {
    const std::lock_guard state(state_);
    number = ++uploads_;
  }
  const auto file = folder_ / (".program-" + std::to_string(number) + std::string(leftover));
  return std::make_unique<Upload>(*this, std::move(announced), file);
}

void Store::take(base::OutputFile& file, AnnounceProgram announced) {
  const std::lock_guard change(change_);
  file.replace();
  const std::lock_guard state(state_);
  program_ = std::move(announced);
}

void Store::setProperties(const Properties& properties) {
  const std::lock_guard change(change_);
  if (!program_) throw Error("The receiver holds no program that has properties.");
  AnnounceProgram changed = *program_;
  for (const auto& [name, value] : properties) {
    const auto found = changed.properties.find(name);
    if (found == changed.properties.end()) {
      throw Error("The program has no property \"" + name + "\".");
    }
    found->second = value;
  }
  base::OutputFile file(folder_ / (".properties" + std::string(leftover)), programFile(),
                        ownerOnly);
  file.write(writeMessage(changed).encode());
  file.write(readProgramFile(programFile()).bytes);
  file.replace();
  const std::lock_guard state(state_);
  program_ = std::move(changed);
}

void Store::setPassword(const std::string& password) {
  const std::lock_guard change(change_);
  std::string hash;
  if (password.empty()) {
    base::removeFile(passwordFile());
  } else {
    hash = hashOf(password);
    base::OutputFile file(folder_ / (".password" + std::string(leftover)), passwordFile(),
                          ownerOnly);
    file.write(hash);
    file.replace();
  }
  const std::lock_guard state(state_);
  passwordHash_ = std::move(hash);
}

bool Store::accepts(const std::string& password) const {
  std::string hash;
  {
    const std::lock_guard state(state_);
    hash = passwordHash_;
  }
  return hash.empty() ||
         crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

}  // namespace receiver
