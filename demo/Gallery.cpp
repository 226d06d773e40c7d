#include "Gallery.h"

#include "PngWriter.h"
#include "foundation/Utf8.h"

#include <shellapi.h>

#include <cstdio>

namespace gallery {

std::vector<Exhibit>& Exhibits() {
    static std::vector<Exhibit> exhibits;
    return exhibits;
}

namespace {

const wchar_t kFrameClass[] = L"VuGalleryFrame";

void RegisterFrameClass() {
    static bool registered = false;
    if (registered)
        return;
    WNDCLASSW wc{};
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    wc.lpszClassName = kFrameClass;
    RegisterClassW(&wc);
    registered = true;
}

} // namespace

HWND Context::CreateFrame(const wchar_t* title, int width, int height) {
    RegisterFrameClass();
    RECT rc{0, 0, width, height};
    const DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    AdjustWindowRect(&rc, style, FALSE);
    HWND frame =
        CreateWindowExW(0, kFrameClass, title, style, 10, 10, rc.right - rc.left,
                        rc.bottom - rc.top, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    ShowWindow(frame, SW_SHOW);
    UpdateWindow(frame);
    Pump();
    return frame;
}

void Context::DestroyFrame(HWND frame) {
    DestroyWindow(frame);
    Pump();
}

void Context::Pump() {
    for (int round = 0; round < 3; ++round) {
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        Sleep(20);
    }
}

void Context::Key(HWND hWnd, UINT vk) {
    SendMessageW(hWnd, WM_KEYDOWN, vk, 1);
    SendMessageW(hWnd, WM_KEYUP, vk, 0xC0000001);
    Pump();
}

void Context::Click(HWND hWnd, int x, int y) {
    SendMessageW(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Pump();
}

bool Context::SaveWindowPng(HWND hWnd, const std::wstring& name, const std::wstring& caption) {
    RedrawWindow(hWnd, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_FRAME);
    Pump();
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    return SaveScreenPng(rc, name, caption);
}

bool Context::SaveClientPng(HWND hWnd, const std::wstring& name, const std::wstring& caption) {
    RedrawWindow(hWnd, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_FRAME);
    Pump();
    RECT rc{};
    GetClientRect(hWnd, &rc);
    MapWindowPoints(hWnd, nullptr, reinterpret_cast<POINT*>(&rc), 2);
    return SaveScreenPng(rc, name, caption);
}

bool Context::SaveScreenPng(const RECT& rc, const std::wstring& name, const std::wstring& caption) {
    const int width = rc.right - rc.left;
    const int height = rc.bottom - rc.top;
    BITMAPINFO bi{};
    bi.bmiHeader.biSize = sizeof(bi.bmiHeader);
    bi.bmiHeader.biWidth = width;
    bi.bmiHeader.biHeight = -height;
    bi.bmiHeader.biPlanes = 1;
    bi.bmiHeader.biBitCount = 32;
    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    DWORD* bits = nullptr;
    HBITMAP bitmap =
        CreateDIBSection(dc, &bi, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
    HGDIOBJ old = SelectObject(dc, bitmap);
    // What the display shows: the window as drawn on the (virtual) screen.
    BitBlt(dc, 0, 0, width, height, screen, rc.left, rc.top, SRCCOPY);
    GdiFlush();
    Picture picture;
    picture.width = width;
    picture.height = height;
    picture.rgb.reserve(static_cast<size_t>(width) * height * 3);
    for (int i = 0; i < width * height; ++i) {
        picture.rgb.push_back(static_cast<uint8_t>(bits[i] >> 16));
        picture.rgb.push_back(static_cast<uint8_t>(bits[i] >> 8));
        picture.rgb.push_back(static_cast<uint8_t>(bits[i]));
    }
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    const bool ok = WritePng(m_outDir + L"\\" + name + L".png", picture);
    Check(ok, "writing a picture");
    m_outputs.push_back({m_exhibit, name + L".png", caption.empty() ? name : caption, true});
    return ok;
}

bool Context::SaveText(const std::wstring& name, const std::wstring& text,
                       const std::wstring& caption) {
    FILE* file = _wfopen((m_outDir + L"\\" + name).c_str(), L"wb");
    if (file == nullptr) {
        Check(false, "opening a text file");
        return false;
    }
    const std::string utf8 = vu::Utf16ToUtf8(text);
    const bool ok = fwrite(utf8.data(), 1, utf8.size(), file) == utf8.size();
    fclose(file);
    Check(ok, "writing a text file");
    m_outputs.push_back({m_exhibit, name, caption.empty() ? name : caption, false});
    return ok;
}

void Context::BeginExhibit(const char* name) {
    m_exhibit = name;
}

namespace {

std::string Html(const std::wstring& text) {
    std::string out;
    for (char c : vu::Utf16ToUtf8(text)) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

} // namespace

bool Context::WriteIndex() {
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<title>VuLib gallery</title>\n<style>\n"
        "body{font-family:sans-serif;margin:2em;background:#f4f4f4}\n"
        "section{margin-bottom:2.5em}figure{display:inline-block;margin:0 1.5em 1em 0;"
        "vertical-align:top}\nimg{border:1px solid #999;background:#fff}\n"
        "figcaption{max-width:40em;margin-top:.4em}\n</style>\n</head>\n<body>\n"
        "<h1>VuLib gallery</h1>\n<p>Every control of the library, drawn by vulib.dll "
        "under Wine, with the XML its controls describe themselves in.</p>\n";
    std::string current;
    bool open = false;
    for (const Output& output : m_outputs) {
        if (!open || output.exhibit != current) {
            if (open)
                html += "</section>\n";
            current = output.exhibit;
            open = true;
            html +=
                "<section>\n<h2>" + Html(std::wstring(current.begin(), current.end())) + "</h2>\n";
        }
        if (output.picture)
            html += "<figure><img src=\"" + Html(output.file) + "\" alt=\"" + Html(output.caption) +
                    "\"><figcaption>" + Html(output.caption) + "</figcaption></figure>\n";
        else
            html +=
                "<p><a href=\"" + Html(output.file) + "\">" + Html(output.caption) + "</a></p>\n";
    }
    if (open)
        html += "</section>\n";
    html += "</body>\n</html>\n";
    FILE* file = _wfopen((m_outDir + L"\\index.html").c_str(), L"wb");
    const bool ok = file != nullptr && fwrite(html.data(), 1, html.size(), file) == html.size();
    if (file != nullptr)
        fclose(file);
    Check(ok, "writing index.html");
    return ok;
}

void Context::Check(bool ok, const char* what) {
    if (ok)
        return;
    ++m_failures;
    std::fprintf(stderr, "gallery: failed: %s\n", what);
}

} // namespace gallery

int main() {
    int argc = 0;
    wchar_t** argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    const std::wstring outDir = argc > 1 ? argv[1] : L"out\\gallery";
    LocalFree(argv);
    CreateDirectoryW(outDir.c_str(), nullptr);

    gallery::Context context(outDir);
    for (const gallery::Exhibit& exhibit : gallery::Exhibits()) {
        const int before = context.Failures();
        context.BeginExhibit(exhibit.name);
        exhibit.run(context);
        std::printf("exhibit %s: %s\n", exhibit.name,
                    context.Failures() == before ? "ok" : "FAILED");
        std::fflush(stdout);
    }
    context.WriteIndex();
    return context.Failures() == 0 ? 0 : 1;
}
