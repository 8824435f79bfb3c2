# Thin wrapper over the CMake presets. `make demo` and `make test` are the two
# everyday commands; the others are for CI and for checking a change in depth.
PRESET ?= release
PREFIX ?= $(CURDIR)/install
JOBS   ?= $(shell nproc)

.PHONY: all configure demo test asan tsan windows bench fuzz install format clean

all: configure
	cmake --build --preset $(PRESET) -j $(JOBS)

configure:
	cmake --preset $(PRESET)

# Builds only the library and the demo, so a first run does not wait for every
# test and benchmark.
demo: configure
	cmake --build --preset $(PRESET) -j $(JOBS) --target qndemo
	./build/$(PRESET)/examples/qndemo

test: all
	ctest --preset $(PRESET) -j $(JOBS)

asan:
	$(MAKE) test PRESET=asan

tsan:
	$(MAKE) test PRESET=tsan

windows:
	$(MAKE) test PRESET=mingw

bench: all
	./bench/run

fuzz:
	$(MAKE) all PRESET=asan
	./.ci/fuzz build/asan

install: all
	cmake --install build/$(PRESET) --prefix $(PREFIX)

format:
	clang-format -i $$(git ls-files '*.h' '*.cpp' '*.imp')

clean:
	rm -rf build
