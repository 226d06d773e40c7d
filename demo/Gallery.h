#pragma once
// The gallery host: each exhibit is one function that builds a control on a
// plain Win32 frame, drives it as a user would, and saves what it shows.
// Adding a control to the gallery is one more function and one
// VU_GALLERY_EXHIBIT line.
#include <windows.h>

#include <string>
#include <vector>

namespace gallery {

class Context {
public:
    explicit Context(std::wstring outDir) : m_outDir(std::move(outDir)) {}

    // A visible top-level frame, client area width x height, for one exhibit.
    HWND CreateFrame(const wchar_t* title, int width, int height);
    void DestroyFrame(HWND frame);

    // Lets posted messages and paints run.
    void Pump();
    // Real input, as the control would get it from the user.
    void Key(HWND hWnd, UINT vk);
    void Click(HWND hWnd, int x, int y);

    // Saves the window (frame and all) as out/<name>.png. The caption is
    // shown under the picture on the index page (the name when empty).
    bool SaveWindowPng(HWND hWnd, const std::wstring& name, const std::wstring& caption = L"");
    // Saves the client area only (a frame's caption is not drawn without a
    // window manager).
    bool SaveClientPng(HWND hWnd, const std::wstring& name, const std::wstring& caption = L"");
    // Saves a rectangle of the screen, for what spans several top-level
    // windows (a dropped-down list beside its combo box).
    bool SaveScreenPng(const RECT& rc, const std::wstring& name, const std::wstring& caption = L"");
    // Saves text as UTF-8; the index page links it.
    bool SaveText(const std::wstring& name, const std::wstring& text,
                  const std::wstring& caption = L"");

    // The index page: one section per exhibit with its pictures and links.
    void BeginExhibit(const char* name);
    bool WriteIndex();
    // Records a failed expectation; the gallery then exits with 1.
    void Check(bool ok, const char* what);

    int Failures() const { return m_failures; }
    const std::wstring& OutDir() const { return m_outDir; }

private:
    struct Output {
        std::string exhibit;
        std::wstring file;
        std::wstring caption;
        bool picture;
    };
    std::wstring m_outDir;
    std::string m_exhibit;
    std::vector<Output> m_outputs;
    int m_failures = 0;
};

using ExhibitFunction = void (*)(Context&);

struct Exhibit {
    const char* name;
    ExhibitFunction run;
};

std::vector<Exhibit>& Exhibits();

struct Registrar {
    Registrar(const char* name, ExhibitFunction run) { Exhibits().push_back({name, run}); }
};

} // namespace gallery

#define VU_GALLERY_JOIN2(a, b) a##b
#define VU_GALLERY_JOIN(a, b) VU_GALLERY_JOIN2(a, b)
#define VU_GALLERY_EXHIBIT(name, function)                                                         \
    static ::gallery::Registrar VU_GALLERY_JOIN(galleryExhibit, __LINE__)(name, function)
