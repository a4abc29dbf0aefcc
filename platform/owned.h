// Ownership of what the library hands out, until it goes into the caller's out pointer.
#ifndef VELKORD_PLATFORM_OWNED_H_
#define VELKORD_PLATFORM_OWNED_H_

namespace velkord::internal {

// Owns an object, or none, that `kFree` releases.
template <typename Object, void (*kFree)(Object*)>
class Owned {
 public:
  Owned() = default;
  ~Owned() { kFree(object_); }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  Object* operator->() const { return object_; }
  Object& operator*() const { return *object_; }

  // Where a function that makes the object stores it.
  Object** Out() { return &object_; }

  Object* release() {
    Object* object = object_;
    object_ = nullptr;
    return object;
  }

 private:
  Object* object_ = nullptr;
};

}  // namespace velkord::internal

#endif  // VELKORD_PLATFORM_OWNED_H_
