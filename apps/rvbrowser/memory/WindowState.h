#ifndef WINDOWSTATE_H
#define WINDOWSTATE_H

class QMainWindow;
class QSplitter;
class Settings;

/// Place and size of a window and of its parts. Its docks and tool bars need object names.
class WindowState
{
public:
    /// The settings must live longer.
    explicit WindowState(Settings *settings) : mySettings(settings) { }

    /// Leaves as it is what is not remembered or damaged; a window that has no place yet becomes no larger than its
    /// screen. True where the places of the docks were remembered.
    bool restore(QMainWindow *window, QSplitter *splitter) const;
    void save(const QMainWindow &window, const QSplitter &splitter);

private:
    Settings *mySettings;
};

#endif
