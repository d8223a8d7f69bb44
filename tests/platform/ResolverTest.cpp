#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/ServiceView.h>
#include <ZKStrings/platform/SharedArray.h>

#include <atomic>
#include <cstdint>
#include <future>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <pthread.h>

namespace zk {
namespace {

template <int>
struct Service {  // a different type in each test, because the registry lives as long as the process
  int value;
};

template <int kNumber>
int resolved(std::optional<std::string_view> name = std::nullopt) {
  return Resolver::resolve<Service<kNumber>>(name).value;
}

template <int kNumber>
int viewed() {
  return ServiceView<Service<kNumber>>()->value;
}

/// Registers a factory with the application scope that returns the result of `value`.
template <int kNumber, class Value>
void registerOne(Value value) {
  Resolver::register_<Service<kNumber>>([value = std::move(value)] {
    return Service<kNumber>{value()};
  }).scope(ResolverScope::application);
}

TEST(Resolver, KeepsTypesAndNamesApart) {
  Resolver::register_<Service<1>>([onlyMoved = std::make_unique<int>(1)] { return Service<1>{*onlyMoved}; });
  Resolver::register_<Service<1>>([] { return Service<1>{2}; }, "two");
  Resolver::register_<Service<1>>([] { return Service<1>{3}; }, "");
  Resolver::register_<Service<2>>([] { return Service<2>{4}; });
  EXPECT_EQ(resolved<1>(), 1);
  EXPECT_EQ(resolved<1>("two"), 2);
  EXPECT_EQ(resolved<1>(""), 3);
  EXPECT_EQ(resolved<2>(), 4);
}

TEST(Resolver, ScopeDecidesHowOftenTheFactoryRuns) {
  int calls = 0;
  ResolverOptions options = Resolver::register_<Service<3>>([&] { return Service<3>{++calls}; });
  EXPECT_EQ(resolved<3>(), 1);
  EXPECT_EQ(viewed<3>(), 2);
  options.scope(ResolverScope::application);
  EXPECT_EQ(resolved<3>(), 3);
  EXPECT_EQ(viewed<3>(), 3);
  EXPECT_EQ(resolved<3>(), 3);
  options.scope(ResolverScope::everyResolve);
  EXPECT_EQ(viewed<3>(), 4);
}

TEST(Resolver, ViewFollowsANewRegistrationButAnOpenViewKeepsItsValue) {
  using Shared = std::shared_ptr<Service<4>>;
  const auto registerShared = [](int value) {
    Resolver::register_<Shared>([value] {
      return std::make_shared<Service<4>>(Service<4>{value});
    }).scope(ResolverScope::application);
  };
  registerShared(1);
  const auto before = ServiceView<Shared>();
  const std::weak_ptr<Service<4>> seen = *before;
  registerShared(2);
  EXPECT_EQ((*ServiceView<Shared>())->value, 2);
  ASSERT_FALSE(seen.expired());
  EXPECT_EQ((*before)->value, 1);
}

TEST(Resolver, ApplicationFactoryRunsOnceWhenFirstResolvesRace) {
  std::atomic<int> calls = 0;
  registerOne<5>([&] {
    std::this_thread::yield();
    return ++calls;
  });
  std::vector<std::future<int>> threads(8);
  for (auto& thread : threads) thread = std::async(std::launch::async, viewed<5>);
  for (auto& thread : threads) EXPECT_EQ(thread.get(), 1);
  EXPECT_EQ(calls, 1);
}

TEST(Resolver, FactoryThatThrowsIsCalledAgain) {
  int calls = 0;
  registerOne<6>([&] { return ++calls == 1 ? throw std::runtime_error("not yet") : calls; });
  EXPECT_THROW(static_cast<void>(resolved<6>()), std::runtime_error);
  EXPECT_EQ(resolved<6>(), 2);
}

TEST(Resolver, AThreadReleasesItsServicesWhenItEnds) {
  using Shared = std::shared_ptr<int>;
  const Shared counted = std::make_shared<int>(1);
  Resolver::register_<Shared>([counted] { return counted; }).scope(ResolverScope::application);
  static_cast<void>(Resolver::resolve<Shared>());
  const long before = counted.use_count();
  const auto view = [](void*) { EXPECT_EQ(**ServiceView<Shared>(), 1); };
  std::thread(view, nullptr).join();
  EXPECT_EQ(counted.use_count(), before);
  // Even if the first view is opened while the thread ends.
  pthread_key_t atThreadEnd{};
  ASSERT_EQ(pthread_key_create(&atThreadEnd, view), 0);
  std::thread([&] { pthread_setspecific(atThreadEnd, &atThreadEnd); }).join();
  EXPECT_EQ(counted.use_count(), before);
  pthread_key_delete(atThreadEnd);
  Resolver::register_<Shared>([] { return std::make_shared<int>(2); });
  EXPECT_EQ(counted.use_count(), 1);
}

/// Resolves its own type in its destructor, as a service that logs might.
struct ReadsItself {
  explicit ReadsItself(int shown) : value(shown) { ++alive; }
  ReadsItself(const ReadsItself&) = delete;
  ReadsItself& operator=(const ReadsItself&) = delete;
  ~ReadsItself() {
    readAtTheEnd = (*ServiceView<std::shared_ptr<ReadsItself>>())->value;
    --alive;
  }
  int value;
  static inline int readAtTheEnd = 0, alive = 0;
};

TEST(Resolver, AServiceMayReadItsOwnTypeInItsDestructor) {
  using Shared = std::shared_ptr<ReadsItself>;
  const auto registerAndView = [](int value) {
    Resolver::register_<Shared>([value] {
      return std::make_shared<ReadsItself>(value);
    }).scope(ResolverScope::application);
    EXPECT_EQ((*ServiceView<Shared>())->value, value);
  };
  for (int value = 1; value <= 3; ++value) {
    registerAndView(value);
    EXPECT_EQ(ReadsItself::readAtTheEnd, value == 1 ? 0 : value);
  }
  // When a thread ends, too.
  std::thread([&] {
    registerAndView(4);
    std::thread(registerAndView, 5).join();
  }).join();
  EXPECT_EQ((*ServiceView<Shared>())->value, 5);
  registerAndView(6);
  EXPECT_EQ(ReadsItself::alive, 1);
}

struct alignas(512) Wide {
  [[nodiscard]] bool isAligned() const { return reinterpret_cast<std::uintptr_t>(this) % alignof(Wide) == 0; }
};

TEST(Resolver, AlignsServicesAndElements) {
  Resolver::register_<Wide>([] { return Wide(); }).scope(ResolverScope::application);
  for (int i = 0; i < 8; ++i) {
    EXPECT_TRUE(ServiceView<Wide>()->isAligned());
    const SharedArray<Wide> list = {Wide(), Wide()};
    EXPECT_TRUE(list[0].isAligned() && list[1].isAligned());
    Resolver::register_<Wide>([] { return Wide(); });
  }
}

TEST(Resolver, FactoriesMayUseTheRegistryAndWaitForOneAnother) {
  std::promise<void> innerIsBeingMade;
  registerOne<8>([&] {
    innerIsBeingMade.set_value();
    std::this_thread::yield();
    return 8;
  });
  registerOne<9>([] {
    registerOne<10>([] { return 10; });
    return resolved<8>() + resolved<10>();
  });
  const auto other = std::async(std::launch::async, [] { EXPECT_EQ(resolved<8>(), 8); });
  innerIsBeingMade.get_future().wait();
  EXPECT_EQ(resolved<9>(), 18);
}

TEST(ResolverDeathTest, ReportsTheErrorAndStops) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(resolved<13>()), "Service<13> is not registered");
  EXPECT_DEATH(static_cast<void>(viewed<13>()), "Service<13> is not registered");
  EXPECT_DEATH(static_cast<void>(resolved<13>("x")), "Service<13> named \"x\" is not registered");
  Resolver::register_<Service<14>>([]() -> std::optional<Service<14>> { return std::nullopt; });
  EXPECT_DEATH(static_cast<void>(resolved<14>()), "has a factory that returned nothing");
  registerOne<15>([] { return resolved<15>(); });
  EXPECT_DEATH(static_cast<void>(resolved<15>()), "is resolved by its own factory");
  registerOne<11>([] { return resolved<12>(); });
  registerOne<12>([] { return viewed<11>(); });
  EXPECT_DEATH(static_cast<void>(resolved<11>()), "Service<11> is resolved by its own factory");
}

}  // namespace
}  // namespace zk
