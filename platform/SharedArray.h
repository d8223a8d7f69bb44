#pragma once

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Export.h>

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace zk {

/// A list. Copies share their elements until one of them changes, so copying only increments a reference count.
///
///     zk::SharedArray<std::string> languages = {"de-DE", "fr-FR"};
///     zk::SharedArray<std::string> copy = languages;   // shares the elements
///     copy.append("en");                               // languages still has two
///
/// Different copies may be used on different threads at the same time. One object follows the thread-safety rules of
/// `std::vector`.
template <class Element>
class SharedArray {
 public:
  /// Constructs an empty list.
  SharedArray() = default;
  /// Constructs a list of the elements in braces.
  SharedArray(std::initializer_list<Element> elements) : SharedArray(std::vector<Element>(elements)) {}
  /// Constructs a list by moving the elements of a vector.
  SharedArray(std::vector<Element> elements)
      : elements_(
            shared(std::make_move_iterator(elements.begin()), std::make_move_iterator(elements.end()))) {}

  /// The number of elements.
  [[nodiscard]] std::size_t size() const { return elements_ ? elements_->size() : 0; }
  /// Whether there are no elements.
  [[nodiscard]] bool empty() const { return size() == 0; }

  /// The element at `index`.
  /// Requires: `index` is less than `size()`.
  [[nodiscard]] const Element& operator[](std::size_t index) const ZK_REFERRED_TO {
    return (*elements_)[index];
  }

  /// The first element, valid until this copy is changed or destroyed.
  [[nodiscard]] const Element* begin() const ZK_REFERRED_TO {
    return elements_ ? elements_->data() : nullptr;
  }
  /// The end of the elements, after the last one.
  [[nodiscard]] const Element* end() const ZK_REFERRED_TO { return begin() + size(); }

  /// Whether one list is a copy of the other and neither has changed since.
  [[nodiscard]] bool sharesElementsWith(const SharedArray& other) const {
    return elements_ == other.elements_;
  }

  /// Adds `element` at the end. Copies all elements only if another copy shares them.
  void append(Element element) {
    if (!isOnlyOwner()) elements_ = shared(begin(), end());
    elements_->push_back(std::move(element));
  }

  /// Calls `change(std::vector<Element>&)` on a copy of the elements and adopts the result. If `change` throws an
  /// exception, the list is unchanged.
  ///
  ///     languages.edit([](std::vector<std::string>& list) { list.erase(list.begin()); });
  template <class Change>
  void edit(Change&& change) {
    std::vector<Element> elements(begin(), end());
    std::forward<Change>(change)(elements);
    *this = SharedArray(std::move(elements));
  }

 private:
  // On their own cache lines, because all threads read the lists of `Current::language`.
  using Elements = std::vector<Element, internal::CacheLineAllocator<Element>>;

  template <class Iterator>
  static std::shared_ptr<Elements> shared(Iterator begin, Iterator end) {
    return std::allocate_shared<Elements>(internal::CacheLineAllocator<Elements>(), begin, end);
  }

  /// Destroying the temporary copy is an acquire operation, so the reads of threads that have destroyed their copies
  /// happen before the changes that follow. Reading the count alone does not ensure this.
  [[nodiscard]] bool isOnlyOwner() const {
    return std::shared_ptr<const Elements>(elements_).use_count() == 2;
  }

  std::shared_ptr<Elements> elements_{};
};

}  // namespace zk
