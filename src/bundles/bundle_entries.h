#ifndef KX_BUNDLES_BUNDLE_ENTRIES_H
#define KX_BUNDLES_BUNDLE_ENTRIES_H

#include <atomic>
#include <string>
#include <utility>

#include "platform/critical_section.h"

namespace bnd {

template <class T>
class BundleFile;

/// What a bundle knows of one locale. T is the translator's class.
///
/// Constant after construction, but for what BundleFile says.
template <class T>
class BundleBase {
 public:
  BundleBase(const BundleBase&) = delete;
  BundleBase& operator=(const BundleBase&) = delete;

  /// Whether this entry is itself the file.
  virtual bool IsFile() const noexcept = 0;

  /// The file that serves the locale. Never null; belongs to the bundle.
  virtual BundleFile<T>* GetFile() noexcept = 0;

  /// Whether the locale is served by the bundle's default.
  virtual bool IsDefault() const noexcept = 0;

  virtual ~BundleBase() = default;

  const std::string& BundleName() const noexcept { return bundleName_; }

  /// Empty for the bundle's default.
  const std::string& Locale() const noexcept { return locale_; }

 protected:
  BundleBase(std::string bundleName, std::string locale)
      : bundleName_(std::move(bundleName)), locale_(std::move(locale)) {}

 private:
  const std::string bundleName_;
  const std::string locale_;
};

/// An entry backed by a file of its own.
template <class T>
class BundleFile final : public BundleBase<T> {
 public:
  BundleFile(std::string bundleName, std::string locale, std::string path)
      : BundleBase<T>(std::move(bundleName), std::move(locale)), path_(std::move(path)) {}

  /// Gives the file's own reference on its translator back.
  ~BundleFile() override {
    if (T* translator = translator_.load(std::memory_order_acquire)) translator->Release();
  }

  bool IsFile() const noexcept override { return true; }
  BundleFile* GetFile() noexcept override { return this; }
  bool IsDefault() const noexcept override { return this->Locale().empty(); }

  /// UTF-8: the traversed directory, "/" and the file's name.
  const std::string& Path() const noexcept { return path_; }

  /// The translator of this file. The first call makes it by `make(*this)`, whose result carries
  /// the reference that this entry keeps; other threads wait for it meanwhile. Later calls take no
  /// lock. If `make` throws or answers null, nothing is kept and the next call tries again.
  template <class Make>
  T* Translator(const Make& make) {
    if (T* made = translator_.load(std::memory_order_acquire)) return made;
    const kx::CriticalSectionGuard guard(lock_);
    T* translator = translator_.load(std::memory_order_relaxed);
    if (translator == nullptr) {
      translator = make(*this);
      translator_.store(translator, std::memory_order_release);
    }
    return translator;
  }

 private:
  const std::string path_;
  kx::CriticalSection lock_;  // held while the translator is made, so that a file is read once
  std::atomic<T*> translator_ = nullptr;
};

/// An entry that stands for another locale's file.
template <class T>
class BundleRef final : public BundleBase<T> {
 public:
  /// @param target  belongs to the same bundle, which destroys both at once
  BundleRef(std::string bundleName, std::string locale, BundleFile<T>& target, bool isDefault)
      : BundleBase<T>(std::move(bundleName), std::move(locale)),
        target_(target),
        isDefault_(isDefault) {}

  bool IsFile() const noexcept override { return false; }
  BundleFile<T>* GetFile() noexcept override { return &target_; }
  bool IsDefault() const noexcept override { return isDefault_; }

 private:
  BundleFile<T>& target_;
  const bool isDefault_;
};

}  // namespace bnd

#endif  // KX_BUNDLES_BUNDLE_ENTRIES_H
