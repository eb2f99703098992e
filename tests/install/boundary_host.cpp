// SPDX-License-Identifier: MIT
// What a linked library owes its host beside calls: its load-time set-up, types, virtual
// destructors and exceptions.
#include <tovangl/tovangl.h>

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <memory>
#include <new>
#include <typeinfo>

namespace {

bool memoryIsGone = false;
int failures = 0;

void expect(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    ++failures;
}

class CountedPie : public tovangl::PieGraph
{
public:
    explicit CountedPie(int& deaths)
        : PieGraph(false)
        , m_deaths(deaths)
    {}
    ~CountedPie() override { ++m_deaths; }

private:
    int& m_deaths;
};

// Qt's own pointer to the application object, so that this host needs nothing of Qt.
void applicationIsMadeAtLoad()
{
    void* const self = dlsym(RTLD_DEFAULT, "_ZN16QCoreApplication4selfE");
    expect(self && *static_cast<void**>(self), "the application object is there before main");
}

void typesAreShared()
{
    int deaths = 0;
    std::unique_ptr<tovangl::Graph> graph(new CountedPie(deaths));
    expect(dynamic_cast<tovangl::PieGraph*>(graph.get()) != nullptr, "a pie is known as a pie");
    expect(typeid(*graph) == typeid(CountedPie), "a derived class keeps its type");
    graph.reset();
    expect(deaths == 1, "a chart is destroyed through its base");

    tovangl::Graph plain;
    expect(!dynamic_cast<tovangl::PieGraph*>(&plain), "a plain graph is no pie");
}

void outOfMemoryIsCaught()
{
    bool isCaught = false;
    memoryIsGone = true;
    try {
        const tovangl::PieGraph pie(true);
    } catch (const std::bad_alloc&) {
        isCaught = true;
    }
    memoryIsGone = false;
    expect(isCaught, "std::bad_alloc leaves the library");
}

} // namespace

void* operator new(std::size_t size)
{
    void* memory = memoryIsGone ? nullptr : std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

int main()
{
    applicationIsMadeAtLoad();
    typesAreShared();
    outOfMemoryIsCaught();
    return failures;
}
