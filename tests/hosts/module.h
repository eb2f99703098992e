// SPDX-License-Identifier: MIT
/// @file
/// Opens and closes the module that holds the chart library, as a host with plugins does.
#ifndef TOVANGL_HOSTS_MODULE_H
#define TOVANGL_HOSTS_MODULE_H

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string>

/// The open module. What cannot be opened ends the host with a message.
class CModule
{
public:
    using Open = void* (*)(const char* path, int mode);

    explicit CModule(const char* path, Open open = dlopen)
        : m_handle(open(path, RTLD_NOW | RTLD_LOCAL))
    {
        requireHandle(m_handle);
    }
    ~CModule() { dlclose(m_handle); }
    CModule(const CModule&) = delete;
    CModule& operator=(const CModule&) = delete;

    bool draw(const std::string& folder, const std::string& name) const
    {
        using Draw = bool (*)(const char*, const char*);
        return function<Draw>("drawPieInModule")(folder.c_str(), name.c_str());
    }

    template <typename Function>
    Function function(const char* name) const
    {
        void* symbol = dlsym(m_handle, name);
        requireHandle(symbol);
        return reinterpret_cast<Function>(symbol);
    }

private:
    static void requireHandle(const void* handle)
    {
        if (handle)
            return;
        std::fprintf(stderr, "%s\n", dlerror());
        std::exit(3);
    }

    void* m_handle;
};

#endif
