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

/// A list value: a copy costs one reference count, and no change in one copy ever shows in another.
///
///     zk::SharedArray<std::string> languages = {"de-DE", "fr-FR"};
///     zk::SharedArray<std::string> copy = languages;   // shares the elements
///     copy.append("en");                               // languages still has two
///
/// The elements themselves are never changed in place: `append` and `edit` give this copy new elements.
/// Different copies may be used on different threads at once; one and the same object follows the rules of
/// `std::vector`.
template <class Element>
class SharedArray {
 public:
  /// What holds the elements: a `std::vector` on cache lines of its own, since all threads read the lists of
  /// the settings.
  using Elements = std::vector<Element, CacheLineAllocator<Element>>;

  /// Without elements.
  SharedArray() = default;
  /// With the elements in braces.
  SharedArray(std::initializer_list<Element> elements) : SharedArray(Elements(elements)) {}
  /// Takes `elements` over, without a copy.
  SharedArray(Elements elements)
      : elements_(std::allocate_shared<const Elements>(CacheLineAllocator<Elements>(), std::move(elements))) {
  }
  /// Takes the elements of a vector over, each moved.
  SharedArray(std::vector<Element> elements)
      : SharedArray(
            Elements(std::make_move_iterator(elements.begin()), std::make_move_iterator(elements.end()))) {}

  /// The number of elements.
  [[nodiscard]] std::size_t size() const { return elements_ ? elements_->size() : 0; }
  /// Whether there is none.
  [[nodiscard]] bool empty() const { return size() == 0; }

  /// The element at `index`, which must be less than `size()`.
  [[nodiscard]] const Element& operator[](std::size_t index) const ZK_REFERRED_TO {
    return (*elements_)[index];
  }

  /// The first element, valid until this copy is changed or ends.
  [[nodiscard]] const Element* begin() const ZK_REFERRED_TO {
    return elements_ ? elements_->data() : nullptr;
  }
  /// Behind the last element.
  [[nodiscard]] const Element* end() const ZK_REFERRED_TO { return begin() + size(); }

  /// Whether one is a copy of the other, neither changed since.
  [[nodiscard]] bool sharesElementsWith(const SharedArray& other) const {
    return elements_ == other.elements_;
  }

  /// Puts `element` at the end. Copies what was there, so that its cost grows with the size; `edit` makes
  /// several changes at the cost of one.
  void append(Element element) {
    edit([&](Elements& elements) { elements.push_back(std::move(element)); });
  }

  /// Calls `change(Elements&)` on a copy of the elements and takes the result over.
  /// When `change` throws, the array is as it was before.
  template <class Change>
  void edit(Change&& change) {
    Elements elements(begin(), end());
    std::forward<Change>(change)(elements);
    *this = SharedArray(std::move(elements));
  }

 private:
  std::shared_ptr<const Elements> elements_{};
};

}  // namespace zk
