# The few commands that a person types. Each first sets up what is missing (tools/setup).
.PHONY: help build test gallery pictures bench soak fuzz hostile schemes dist msi sign samples check clean

help: ## this list
	@awk -F':.*## ' '/^[a-z]+:.*## /{printf "make %-8s %s\n", $$1, $$2}' Makefile

build: ## out/x86/quilbt.ocx and out/x64/quilbt.ocx, with the gallery beside each
	@tools/build --product x86-release x64-release

test: ## every test of both architectures
	@tools/test

gallery: ## opens the gallery: forms with live buttons; ARGS="FORM" for one of yours
	@tools/gallery $(ARGS)

pictures: ## the documents' pictures, taken anew from the running gallery
	@tools/pictures

bench: ## speed and size, as ratios
	@tools/bench

fuzz: ## malformed data for everything that reads it; MINUTES=5 each; KEEP=yes packs what it found for everybody
	@tools/fuzz $(if $(KEEP),--keep) $(MINUTES)

soak: ## what 100,000 paints and 10,000 lives of each control leave behind
	@tools/soak $(PAINTS) $(LIVES)

hostile: ## the long form of the tests in hostile containers; RUNS=2000 random runs, SEED=… to repeat them
	@tools/hostile $(or $(RUNS),2000) $(SEED)

schemes: ## tests and pictures at other resolutions and in a high-contrast scheme
	@tools/schemes $(DPI)

dist: ## out/dist/quillet-*.zip, what is shipped, and its symbols apart
	@tools/dist

samples: ## the samples for each kind of host, built and used where they can run
	@tools/samples

msi: ## out/dist/quillet-*.msi, the installers
	@tools/msi

sign: ## the same, signed, in out/signed/dist; CERT=chain.pem KEY=key.pem, TIMESTAMP=http://… if wanted
	@tools/sign "$(CERT)" "$(KEY)" "$(TIMESTAMP)"

check: ## format, links, tidy, build, tests, samples, fuzzing, benchmarks and archives in short
	@tools/check

clean: ## removes everything that was built
	rm -rf build out
