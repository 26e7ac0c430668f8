// A value of a control that tells its owner when it changes.
#pragma once

#include <utility>

namespace ui {

/// What owns properties: told after each change, with the property's address.
class Changeable {
 public:
  virtual void PropertyChanged(const void* property) = 0;

 protected:
  ~Changeable() = default;
};

/// Reads like a plain member and is assigned like one; an assignment of an equal value is none.
template <class T>
class Property {
 public:
  explicit Property(Changeable* owner, T value = T()) : owner_(owner), value_(std::move(value)) {}
  Property(const Property&) = delete;

  Property& operator=(T value) {
    if (value_ == value) return *this;
    value_ = std::move(value);
    owner_->PropertyChanged(this);
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }

  const T& operator()() const { return value_; }
  operator const T&() const { return value_; }
  friend bool operator==(const Property& property, const T& value) {
    return property.value_ == value;
  }

 private:
  Changeable* owner_;
  T value_;
};

}  // namespace ui
