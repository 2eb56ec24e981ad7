/// \file
/// The loaded module: the one engine, the lock count, and what is made from them.
#pragma once

#include <atomic>
#include <mutex>
#include <string>

#include "server/windows/automation.h"
#include "server/zv_calvex.h"

namespace calvex::com {

class Server {
 public:
  /// Makes the engine. Throws when it cannot be made.
  explicit Server(HINSTANCE instance);
  ~Server();
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  [[nodiscard]] HINSTANCE instance() const noexcept { return instance_; }
  /// The module's full path.
  [[nodiscard]] std::wstring path() const;
  [[nodiscard]] Module& module() noexcept { return module_; }

  /// Live objects and locked class factories.
  void lock() noexcept { ++locks_; }
  void unlock() noexcept;
  [[nodiscard]] bool isInUse() const noexcept { return locks_ != 0; }

  /// The description of the interface or of the class, from the module's own type library.
  HRESULT typeInformation(REFGUID id, ITypeInfo** information);

 private:
  HINSTANCE instance_;
  Module module_;
  std::atomic<long> locks_ = 0;
  std::mutex typeLibraryMutex_;
  ITypeLib* typeLibrary_ = nullptr;
};

/// From the module's start-up to its shut-down.
[[nodiscard]] Server& server() noexcept;

/// Keeps the module loaded.
class ModuleLock {
 public:
  ModuleLock() { server().lock(); }
  ~ModuleLock() { server().unlock(); }
  ModuleLock(const ModuleLock&) = delete;
  ModuleLock& operator=(const ModuleLock&) = delete;
};

}  // namespace calvex::com
