# The two commands of the README: `make demo` and `make test`.
JOBS ?= $(shell nproc)
BUILD := build/release
ASAN := build/asan
COVER := build/coverage
FUZZ := build/fuzz
FUZZ_SECONDS ?= 60
FUZZ_RUNS ?=

.PHONY: all bootstrap build build-asan demo test test-release test-asan bench coverage fuzz fuzz-build fuzz-corpus clean

all: build

bootstrap:
	@scripts/bootstrap

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

$(ASAN)/CMakeCache.txt:
	cmake -S . -B $(ASAN) -DCMAKE_BUILD_TYPE=Debug -DKVL_SANITIZE=ON

$(COVER)/CMakeCache.txt:
	cmake -S . -B $(COVER) -DCMAKE_BUILD_TYPE=Debug -DKVL_COVERAGE=ON -DKVL_BENCH=OFF

build: bootstrap $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

build-asan: bootstrap $(ASAN)/CMakeCache.txt
	cmake --build $(ASAN) -j $(JOBS)

# The demo needs only the program: the test suite and the benchmarks are built by
# `make test` and `make bench`.
demo: bootstrap $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) --target kvl -j $(JOBS)
	$(BUILD)/kvl demo

test: test-release test-asan

test-release: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-asan: build-asan
	cd $(ASAN) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

# Coverage needs gcovr, which only this target installs.
coverage: $(COVER)/CMakeCache.txt
	@scripts/bootstrap coverage
	cmake --build $(COVER) -j $(JOBS)
	find $(COVER) -name '*.gcda' -delete
	$(COVER)/kvl_tests --gtest_brief=1
	scripts/coverage $(COVER)

# The readers fuzzed with clang's libFuzzer, which only this target installs.
$(FUZZ)/CMakeCache.txt:
	@scripts/bootstrap fuzz
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKVL_FUZZ=ON

fuzz-build: $(FUZZ)/CMakeCache.txt
	cmake --build $(FUZZ) -j $(JOBS)

fuzz: fuzz-build
	scripts/fuzz $(FUZZ) $(FUZZ_SECONDS) $(FUZZ_RUNS)

# Rewrites the kept seeds from the league the targets stand on.
fuzz-corpus: fuzz-build
	rm -rf fuzz/corpus
	$(FUZZ)/make_corpus fuzz/corpus

bench: build
	@for b in $(BUILD)/bench_*; do echo "== $$b"; $$b; done

clean:
	rm -rf build
