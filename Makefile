# Entry points for developers. Every target runs CMake with a preset of CMakePresets.json.
.DEFAULT_GOAL := help
.PHONY: help run test test-arm64 elsewhere sanitize fuzz storm soak coverage mutate lint docs bench install loop new-app packages try-packages pictures release-check format clean

PREFIX ?= /usr/local
ARGS ?=
CTEST ?=
SECONDS ?= 60
SUITE ?=
SEED ?=
COUNT ?=
WERROR ?= OFF
FUZZ ?= --verbose
release := build/release
sources = $(shell find Sources Example Tests Fuzzers Benchmarks -name '*.cpp' -o -name '*.h')
# clang-tidy needs compile commands and generated headers, so `make lint` builds first.
units = $(shell find Sources Example -name '*.cpp')

help:
	@echo "make run        build and start the example (ARGS=\"--app birch --dark\"); without a display, write pictures"
	@echo "make test       check formatting and QML files, build, run all tests"
	@echo "make test-arm64  compile for arm64 on x86-64 and run the tests that an emulator can run"
	@echo "make elsewhere  run \`make run\` and \`make test\` in a minimal system of the Debian release SUITE, or of each"
	@echo "make sanitize   run the tests under AddressSanitizer, UndefinedBehaviorSanitizer, ThreadSanitizer and Valgrind"
	@echo "make fuzz       run each fuzz target for SECONDS=$(SECONDS) seconds"
	@echo "make storm      run a million random calls and events under AddressSanitizer"
	@echo "make soak       simulate a month of use in half an hour and draw the memory used"
	@echo "make coverage   print the line and branch coverage of Sources"
	@echo "make mutate     mutation testing: change COUNT places of Sources, drawn by SEED, and expect a test to fail"
	@echo "make lint       check the words of comments and documents; run clang-tidy and clazy"
	@echo "make docs       write the API reference to build/docs/html"
	@echo "make bench      run the benchmarks, print tables and update docs/cost.md"
	@echo "make loop       measure how long \`make test\` takes, and update docs/cost.md"
	@echo "make install    install to PREFIX=$(PREFIX)"
	@echo "make new-app    write an app that uses the library: NAME=\"Hazel Grid\" APP=hazel DIR=../hazel-grid"
	@echo "make packages   build Debian packages into build/packages/packages"
	@echo "make release-check  check everything before a release; takes hours"
	@echo "make try-packages  build packages on the Debian release SUITE, or on each; install, run and remove them elsewhere"
	@echo "make pictures   update the pictures of the documentation and those that tests compare"
	@echo "make format     format all sources with clang-format"
	@echo "make clean      remove the build folder"

run:
	tools/install-packages build run
	cmake --preset release -DTQFOUNDATION_TESTS=OFF -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release
	$(release)/Example/Grove $(ARGS)

test:
	tools/install-packages build run test
	tools/format --check $(sources)
	cmake --preset release -DTQFOUNDATION_TESTS=ON -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release
	cmake --build --preset release --target all_qmllint
	ctest --preset release $(CTEST)

test-arm64:
	tools/install-packages build run arm64
	cmake --preset arm64 -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset arm64
	ctest --preset arm64 $(CTEST)

elsewhere:
	CTEST="$(CTEST)" tools/elsewhere $(SUITE)

new-app:
	@tools/new-app "$$NAME" "$$APP" "$$DIR"

try-packages:
	tools/elsewhere --packages $(SUITE)

sanitize:
	tools/install-packages build run test sanitize
	cmake --preset sanitize
	cmake --build --preset sanitize
	ctest --preset sanitize
	cmake --preset threads
	cmake --build --preset threads
	ctest --preset threads
	cmake --preset release -DTQFOUNDATION_TESTS=ON -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release --target CoreTests
	valgrind -q --error-exitcode=1 --leak-check=full --errors-for-leak-kinds=definite \
		$(release)/Tests/CoreTests --gtest_brief=1 --gtest_filter='-*DeathTest.*:*AtScales.*'

fuzz:
	tools/install-packages build test fuzz
	cmake --preset fuzz -DTQFOUNDATION_SMOKE_SECONDS=$(SECONDS) -DTQFOUNDATION_SMOKE_SEED=$(or $(SEED),0) \
		-DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset fuzz
	ctest --preset fuzz $(FUZZ)

storm:
	tools/install-packages build run test sanitize
	cmake --preset sanitize
	cmake --build --preset sanitize --target storm

soak:
	tools/install-packages build run test bench
	cmake --preset release -DTQFOUNDATION_TESTS=ON -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release --target Tests
	cmake --build --preset release --target soak

coverage:
	tools/install-packages build run test coverage
	cmake --preset coverage
	cmake --build --preset coverage
	find build/coverage -name '*.gcda' -delete
	ctest --preset coverage
	gcovr --root . --filter Sources/ --exclude-throw-branches --exclude-unreachable-branches \
		--txt --print-summary build/coverage

mutate:
	tools/install-packages build run test mutate
	tools/mutate --seed "$(SEED)" --count "$(COUNT)" --docs docs

lint:
	tools/install-packages build run test lint
	cmake --preset release -DTQFOUNDATION_TESTS=ON -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release
	tools/lint $(release) $(units)

docs:
	tools/install-packages docs
	tools/make-docs

bench:
	tools/install-packages build run bench
	cmake --preset bench
	cmake --build --preset bench
	Benchmarks/run build/bench --docs docs
	Benchmarks/measure-background build/bench --docs docs

loop:
	tools/measure-loop --docs docs

install:
	tools/install-packages build
	cmake --preset release -DTQFOUNDATION_TESTS=OFF -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release
	cmake --install $(release) --prefix $(PREFIX)

packages:
	tools/install-packages build packages
	cmake --preset packages
	cmake --build --preset packages
	python3 Tests/Project/packages_test.py build/packages

pictures:
	tools/install-packages build run test pictures
	cmake --preset release -DTQFOUNDATION_TESTS=ON -DTQFOUNDATION_WERROR=$(WERROR)
	cmake --build --preset release
	tools/take-pictures $(release)/Example/Grove docs/pictures
	TQ_UPDATE_PICTURES=1 ctest --preset release -R 'Pictures[.]'

release-check:
	tools/release-check

format:
	tools/format $(sources)

clean:
	$(RM) -r build
