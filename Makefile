# The two commands of the README: `make demo` and `make test`.
JOBS ?= $(shell nproc)
BUILD := build/release
ASAN := build/asan

.PHONY: all bootstrap build build-asan demo test test-release test-asan bench clean

all: build

bootstrap:
	@scripts/bootstrap

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

$(ASAN)/CMakeCache.txt:
	cmake -S . -B $(ASAN) -DCMAKE_BUILD_TYPE=Debug -DKVL_SANITIZE=ON

build: bootstrap $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

build-asan: bootstrap $(ASAN)/CMakeCache.txt
	cmake --build $(ASAN) -j $(JOBS)

demo: build
	$(BUILD)/kvl demo

test: test-release test-asan

test-release: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-asan: build-asan
	cd $(ASAN) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

bench: build
	@for b in $(BUILD)/bench_*; do echo "== $$b"; $$b; done

clean:
	rm -rf build
