# The front door. Everything below is CMake with the presets of CMakePresets.json.
.DEFAULT_GOAL := help
.PHONY: help run test sanitize fuzz storm soak coverage lint docs bench install packages pictures release-check format clean

PREFIX ?= /usr/local
ARGS ?=
CTEST ?=
SECONDS ?= 60
FUZZ ?= --verbose
release := build/release
sources = $(shell find Sources Example Tests Fuzzers Benchmarks -name '*.cpp' -o -name '*.h')
# clang-tidy reads one compiler's command line and generated headers, so it comes after a build.
units = $(shell find Sources Example -name '*.cpp')

# The tests of what needs no toolkit.
plain = DriftPath.*:DriftRanges.*:TransitPoints.*:ControlPoint.*:ShuffledDistribution.*:SplitMix64.*:Layer.*:TickGrid.*:$\
	StrokeGeometry.*:StrokeMask.*

help:
	@echo "make run        build and start the example (ARGS=\"--app birch --dark\"); pictures where there is no display"
	@echo "make test       check the formatting and the QML files, build, run all tests and each fuzzer for 20 s"
	@echo "make sanitize   run the tests under the sanitizers for addresses, behaviour and threads, and Valgrind"
	@echo "make fuzz       feed every door with whatever comes, SECONDS=$(SECONDS) for each"
	@echo "make storm      a million random calls and events, under the sanitizers"
	@echo "make soak       a month of an app's life, in half an hour; draws what it held"
	@echo "make coverage   which lines and branches of Sources the tests reach"
	@echo "make lint       clang-tidy and clazy"
	@echo "make docs       write the API reference to build/docs/html"
	@echo "make bench      measure; prints tables and writes docs/cost.md anew"
	@echo "make install    install to PREFIX ($(PREFIX))"
	@echo "make packages   build Debian packages into build/packages/packages"
	@echo "make pictures   write the pictures of the documentation anew"
	@echo "make release-check  check everything before a release; takes hours"
	@echo "make format     format all sources"
	@echo "make clean      remove what was built"

run:
	tools/install-packages build run
	cmake --preset release -DTQFOUNDATION_TESTS=OFF
	cmake --build --preset release
	$(release)/Example/Grove $(ARGS)

test:
	tools/install-packages build run test
	clang-format --dry-run --Werror $(sources)
	cmake --preset release -DTQFOUNDATION_TESTS=ON
	cmake --build --preset release
	cmake --build --preset release --target all_qmllint
	ctest --preset release $(CTEST)
	$(MAKE) --no-print-directory fuzz SECONDS=20 FUZZ=

sanitize:
	tools/install-packages build run test sanitize
	cmake --preset sanitize
	cmake --build --preset sanitize --target Tests
	ctest --preset sanitize
	cmake --preset threads
	cmake --build --preset threads --target Tests
	ctest --preset threads
	cmake --preset release -DTQFOUNDATION_TESTS=ON
	cmake --build --preset release --target Tests
	QT_QPA_PLATFORM=offscreen valgrind -q --error-exitcode=1 --leak-check=full --errors-for-leak-kinds=definite \
		$(release)/Tests/Tests --gtest_brief=1 --gtest_filter='$(plain)'

fuzz:
	tools/install-packages build test
	cmake --preset fuzz -DTQFOUNDATION_SMOKE_SECONDS=$(SECONDS)
	cmake --build --preset fuzz
	ctest --preset fuzz $(FUZZ)

storm:
	tools/install-packages build run test sanitize
	cmake --preset sanitize
	cmake --build --preset sanitize --target storm

soak:
	tools/install-packages build run test bench
	cmake --preset release -DTQFOUNDATION_TESTS=ON
	cmake --build --preset release --target Tests
	cmake --build --preset release --target soak

coverage:
	tools/install-packages build run test coverage
	cmake --preset coverage
	cmake --build --preset coverage --target Tests ComposeMail
	find build/coverage -name '*.gcda' -delete
	ctest --preset coverage
	gcovr --root . --filter Sources/ --exclude-throw-branches --exclude-unreachable-branches \
		--txt --print-summary build/coverage

lint:
	tools/install-packages build run test
	cmake --preset release -DTQFOUNDATION_TESTS=ON
	cmake --build --preset release
	tools/lint $(release) $(units)

docs:
	tools/install-packages docs
	tools/make-docs

bench:
	tools/install-packages build run bench
	cmake --preset bench
	cmake --build --preset bench
	Benchmarks/run build/bench
	Benchmarks/measure-background build/bench --docs docs

install:
	tools/install-packages build
	cmake --preset release -DTQFOUNDATION_TESTS=OFF
	cmake --build --preset release
	cmake --install $(release) --prefix $(PREFIX)

packages:
	tools/install-packages build packages
	cmake --preset packages
	cmake --build --preset packages
	cpack --config build/packages/CPackConfig.cmake
	lintian --fail-on error build/packages/packages/*.deb

pictures:
	tools/install-packages build run pictures
	cmake --preset release -DTQFOUNDATION_TESTS=OFF
	cmake --build --preset release
	tools/take-pictures $(release)/Example/Grove docs/pictures

release-check:
	tools/release-check

format:
	clang-format -i $(sources)

clean:
	$(RM) -r build
