# The two commands of a fresh machine: `make book` and `make test`. `make help` lists the others.

PRESET ?= release
BUILD := build/$(PRESET)
OUT ?= out
PDF ?= $(BUILD)/samples/sample.pdf

configure = { mkdir -p build && cmake --preset $(PRESET) $(1) >$(BUILD).log 2>&1 || { cat $(BUILD).log; exit 1; }; }

.PHONY: book app package test faults sanitizers bench packages packages-desktop packages-test build-book build-desktop build build-tidy \
	format format-check tidy tidy-change help

help:
	@echo "make book [PDF=file.pdf] [OUT=folder]   publish a book"
	@echo "make app [PDF=file.pdf]                 start the program with its window"
	@echo "make package                            make Debian packages to install it with"
	@echo "make test                               build and run every test"
	@echo "make faults                             inject faults into publishing and check what becomes of the book"
	@echo "make sanitizers                         the core's tests under sanitizers, a moment of fuzzing"
	@echo "make bench                              measure, see docs/performance.md"
	@echo "make format-check                       check the format of the C++ code"
	@echo "make tidy                               run clang-tidy over src/"
	@echo "make tidy-change BASE=commit            the same over what changed since that commit"
	@echo "PRESET=debug|asan-ubsan                 build and test another way"

packages:
	@tools/install-packages.sh
packages-desktop:
	@tools/install-packages.sh tools/packages-desktop.txt
packages-test:
	@tools/install-packages.sh tools/packages-desktop.txt tools/packages-test.txt

# `make book` builds neither the window nor the tests, and `make app` no tests. Options switched on by an earlier build
# of this folder stay on.
build-book: packages
	@[ -e $(BUILD)/CMakeCache.txt ] || $(call configure,-D FOLVERO_DESKTOP=OFF -D BUILD_TESTING=OFF)
	@cmake --build --preset $(PRESET) --target folvero resources sample-book

build-desktop: packages-desktop
	@$(call configure,-D FOLVERO_DESKTOP=ON $(if $(wildcard $(BUILD)/CMakeCache.txt),,-D BUILD_TESTING=OFF))
	@cmake --build --preset $(PRESET)

build: packages-test
	@$(call configure,-D FOLVERO_DESKTOP=ON -D BUILD_TESTING=ON)
	@cmake --build --preset $(PRESET)

book: build-book
	@$(BUILD)/bin/folvero publish "$(PDF)" "$(OUT)"
	@echo "Open the page above with a double-click, or put the folder on a web server."

# A PDF given as argument is imported at once.
app: build-desktop
	@$(BUILD)/bin/folvero-desktop $(if $(filter command% environment%,$(origin PDF)),"$(PDF)")

# Like `cpack` in the build folder, but prints the packages' paths more clearly.
package: build-desktop
	@cd $(BUILD) && cpack >package.log 2>&1 || { cat package.log; exit 1; }
	@sed -n 's/^CPack: - package: \(.*\) generated\.$$/\1/p' $(BUILD)/package.log

test: build format-check
	@ctest --preset $(PRESET) -j 2

faults: build
	@tools/faults.py

# Two more builds of the core alone, which use the generated files of the first one.
sanitizers: build
	@for preset in fuzz tsan; do \
		cmake --preset $$preset >build/$$preset.log 2>&1 || { cat build/$$preset.log; exit 1; }; \
		cmake --build --preset $$preset && ctest --preset $$preset -j 2 || exit 1; \
	done

format-check: packages-test
	@git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror

format:
	@git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format -i

tidy: build-tidy
	@git ls-files -z 'src/*.cpp' | xargs -0 -n 8 -P 2 clang-tidy --quiet -p build/tidy

# Commands to compile with, nothing compiled.
build-tidy: packages-test
	@mkdir -p build && cmake --preset release -B build/tidy -D FOLVERO_PRECOMPILE=OFF -D CMAKE_UNITY_BUILD=OFF >build/tidy.log 2>&1 || \
		{ cat build/tidy.log; exit 1; }

# A changed header is looked at with the sources that bear its name. A file takes a quarter of a minute, so there is a
# limit, which many days of work may exceed: then those that changed last.
MOST ?= 1000
tidy-change: build-tidy
	@git rev-parse --verify --quiet "$(BASE)^{commit}" >/dev/null || { echo "make tidy-change: BASE names no commit"; exit 1; }
	@{ git diff --name-only HEAD -- src; git log --format= --name-only $(BASE).. -- src; } | \
		sed -n 's/\.\(cpp\|h\)$$/.cpp/p' | awk '!seen[$$0]++' | xargs -r ls -U 2>/dev/null >build/tidy.files; \
		echo "$$(wc -l <build/tidy.files) sources have changed; of these at most $(MOST) are looked at"; \
		head -n $(MOST) build/tidy.files | xargs -r -n 4 -P 2 clang-tidy --quiet -p build/tidy

bench: build
	@tools/install-packages.sh bench/packages.txt
	@bench/run.sh $(BUILD)
