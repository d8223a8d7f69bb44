#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/platform/registry/ServiceView.h>

#include <atomic>
#include <cstdint>
#include <future>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <pthread.h>

namespace zk {
namespace {

template <int>
struct Service {  // a type of its own for each test, since the registry lives as long as the process
  int value;
};

TEST(Resolver, KeepsTypesAndNamesApart) {
  Resolver::register_<Service<1>>([] { return Service<1>{1}; });
  Resolver::register_<Service<1>>([] { return Service<1>{2}; }, "two");
  Resolver::register_<Service<1>>([] { return Service<1>{3}; }, "");
  Resolver::register_<Service<2>>([] { return Service<2>{4}; });
  EXPECT_EQ(Resolver::resolve<Service<1>>().value, 1);
  EXPECT_EQ(Resolver::resolve<Service<1>>("two").value, 2);
  EXPECT_EQ(Resolver::resolve<Service<1>>("").value, 3);
  EXPECT_EQ(Resolver::resolve<Service<2>>().value, 4);
}

TEST(Resolver, ScopeDecidesHowOftenTheFactoryRuns) {
  int calls = 0;
  ResolverOptions options = Resolver::register_<Service<3>>([&] { return Service<3>{++calls}; });
  EXPECT_EQ(Resolver::resolve<Service<3>>().value, 1);
  EXPECT_EQ(ServiceView<Service<3>>()->value, 2);
  options.scope(ResolverScope::application);
  EXPECT_EQ(Resolver::resolve<Service<3>>().value, 3);
  EXPECT_EQ(ServiceView<Service<3>>()->value, 3);
  EXPECT_EQ(Resolver::resolve<Service<3>>().value, 3);
  options.scope(ResolverScope::everyResolve);
  EXPECT_EQ(ServiceView<Service<3>>()->value, 4);
}

TEST(Resolver, ViewFollowsANewRegistrationButAnOpenViewKeepsItsValue) {
  Resolver::register_<Service<4>>([] { return Service<4>{1}; }).scope(ResolverScope::application);
  const auto before = ServiceView<Service<4>>();
  Resolver::register_<Service<4>>([] { return Service<4>{2}; }).scope(ResolverScope::application);
  EXPECT_EQ(ServiceView<Service<4>>()->value, 2);
  EXPECT_EQ(before->value, 1);
}

TEST(Resolver, ApplicationFactoryRunsOnceWhenFirstResolvesRace) {
  std::atomic<int> calls = 0;
  Resolver::register_<Service<5>>([&] {
    std::this_thread::yield();
    return Service<5>{++calls};
  }).scope(ResolverScope::application);
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([] { EXPECT_EQ(ServiceView<Service<5>>()->value, 1); });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(calls, 1);
}

TEST(Resolver, FactoryMayUseTheRegistry) {
  Resolver::register_<Service<6>>([] {
    Resolver::register_<Service<7>>([] { return Service<7>{7}; });
    return Service<6>{Resolver::resolve<Service<7>>().value};
  }).scope(ResolverScope::application);
  EXPECT_EQ(Resolver::resolve<Service<6>>().value, 7);
}

TEST(Resolver, FactoryThatThrowsIsAskedAgain) {
  int calls = 0;
  Resolver::register_<Service<8>>([&] {
    if (++calls == 1) throw std::runtime_error("not yet");
    return Service<8>{calls};
  }).scope(ResolverScope::application);
  EXPECT_THROW(static_cast<void>(Resolver::resolve<Service<8>>()), std::runtime_error);
  EXPECT_EQ(Resolver::resolve<Service<8>>().value, 2);
}

TEST(Resolver, ThreadsRegisterAndResolveAtOnce) {
  const auto assign = [](int value) {
    Resolver::register_<Service<9>>([value] { return Service<9>{value}; }).scope(ResolverScope::application);
  };
  assign(0);
  std::atomic<bool> done = false;
  std::vector<std::thread> readers;
  for (int i = 0; i < 3; ++i) {
    readers.emplace_back([&] {
      for (int last = 0; !done;) {
        const int now = ServiceView<Service<9>>()->value;
        EXPECT_GE(now, last);
        last = now;
      }
      EXPECT_EQ(ServiceView<Service<9>>()->value, 2000);
    });
  }
  for (int value = 1; value <= 2000; ++value) assign(value);
  done = true;
  for (std::thread& reader : readers) reader.join();
}

TEST(Resolver, AThreadGivesUpWhatItKeptWhenItEnds) {
  const auto counted = std::make_shared<int>(1);
  using Shared = std::shared_ptr<int>;
  Resolver::register_<Shared>([counted] { return counted; }).scope(ResolverScope::application);
  std::thread([] { static_cast<void>(*ServiceView<Shared>()); }).join();
  Resolver::register_<Shared>([] { return std::make_shared<int>(2); }).scope(ResolverScope::application);
  EXPECT_EQ(counted.use_count(), 1);
}

TEST(Resolver, AThreadGivesUpWhatItKeptAlsoWhenItsFirstViewComesAtItsVeryEnd) {
  using Shared = std::shared_ptr<long>;
  const Shared counted = std::make_shared<long>(1);
  Resolver::register_<Shared>([counted] { return counted; }).scope(ResolverScope::application);
  static_cast<void>(Resolver::resolve<Shared>());
  const long before = counted.use_count();
  pthread_key_t atThreadEnd{};
  ASSERT_EQ(pthread_key_create(&atThreadEnd, [](void*) { EXPECT_EQ(**ServiceView<Shared>(), 1); }), 0);
  std::thread([&] { pthread_setspecific(atThreadEnd, &atThreadEnd); }).join();
  EXPECT_EQ(counted.use_count(), before);
  pthread_key_delete(atThreadEnd);
}

TEST(Resolver, MovesFactoriesAndNeverCopiesThem) {
  auto captured = std::make_unique<int>(13);
  Resolver::register_<Service<13>>([captured = std::move(captured)] { return Service<13>{*captured}; });
  EXPECT_EQ(Resolver::resolve<Service<13>>().value, 13);
}

/// Reads its own type when it goes, as a service that logs might.
struct ReadsItself {
  explicit ReadsItself(int shown) : value(shown) {}
  ReadsItself(const ReadsItself&) = delete;
  ReadsItself& operator=(const ReadsItself&) = delete;
  ~ReadsItself() { readAtTheEnd = (*ServiceView<std::shared_ptr<ReadsItself>>())->value; }
  int value;
  static inline int readAtTheEnd = 0;
};

TEST(Resolver, AServiceMayReadItsOwnTypeInItsDestructor) {
  using Shared = std::shared_ptr<ReadsItself>;
  for (int value = 1; value <= 3; ++value) {
    Resolver::register_<Shared>([value] {
      return std::make_shared<ReadsItself>(value);
    }).scope(ResolverScope::application);
    EXPECT_EQ((*ServiceView<Shared>())->value, value);
    EXPECT_EQ(ReadsItself::readAtTheEnd, value == 1 ? 0 : value);
  }
  std::thread([] { EXPECT_EQ((*ServiceView<Shared>())->value, 3); }).join();
}

struct alignas(512) Wide {
  char content = 'w';
  [[nodiscard]] bool isAligned() const { return reinterpret_cast<std::uintptr_t>(this) % alignof(Wide) == 0; }
};

TEST(Resolver, AlignsServicesAndElementsAsTheirTypesAsk) {
  Resolver::register_<Wide>([] { return Wide(); }).scope(ResolverScope::application);
  for (int i = 0; i < 8; ++i) {
    EXPECT_TRUE(ServiceView<Wide>()->isAligned());
    const SharedArray<Wide> list = {Wide(), Wide()};
    EXPECT_TRUE(list[0].isAligned() && list[1].isAligned());
    Resolver::register_<Wide>([] { return Wide(); });
  }
}

TEST(Resolver, FactoriesMayWaitForOneAnotherWithoutACircle) {
  std::promise<void> innerIsBeingMade;
  Resolver::register_<Service<14>>([&] {
    innerIsBeingMade.set_value();
    std::this_thread::yield();
    return Service<14>{14};
  }).scope(ResolverScope::application);
  Resolver::register_<Service<15>>([] {
    return Service<15>{Resolver::resolve<Service<14>>().value + 1};
  }).scope(ResolverScope::application);
  std::thread other([] { EXPECT_EQ(Resolver::resolve<Service<14>>().value, 14); });
  innerIsBeingMade.get_future().wait();
  EXPECT_EQ(Resolver::resolve<Service<15>>().value, 15);
  other.join();
}

TEST(ResolverDeathTest, StopsACircleOfFactoriesOnSeveralThreads) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto resolveInACircle = [] {
    std::promise<void> one;
    std::promise<void> two;
    Resolver::register_<Service<16>>([&] {
      one.set_value();
      two.get_future().wait();
      return Service<16>{Resolver::resolve<Service<17>>().value};
    }).scope(ResolverScope::application);
    Resolver::register_<Service<17>>([&] {
      two.set_value();
      one.get_future().wait();
      return Service<17>{Resolver::resolve<Service<16>>().value};
    }).scope(ResolverScope::application);
    std::thread other([] { static_cast<void>(Resolver::resolve<Service<17>>()); });
    static_cast<void>(Resolver::resolve<Service<16>>());
    other.join();
  };
  EXPECT_DEATH(resolveInACircle(), "is resolved by its own factory, directly or through others");
}

TEST(ResolverDeathTest, SaysWhatIsWrongAndStops) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(Resolver::resolve<Service<10>>()), "Service<10> is not registered");
  EXPECT_DEATH(static_cast<void>(ServiceView<Service<10>>()), "Service<10> is not registered");
  EXPECT_DEATH(static_cast<void>(Resolver::resolve<Service<10>>("x")),
               "Service<10> named \"x\" is not registered");
  Resolver::register_<Service<11>>([]() -> std::optional<Service<11>> { return std::nullopt; });
  EXPECT_DEATH(static_cast<void>(Resolver::resolve<Service<11>>()), "has a factory that gives nothing");
  Resolver::register_<Service<12>>([] {
    return Resolver::resolve<Service<12>>();
  }).scope(ResolverScope::application);
  EXPECT_DEATH(static_cast<void>(Resolver::resolve<Service<12>>()), "is resolved by its own factory");
}

}  // namespace
}  // namespace zk
