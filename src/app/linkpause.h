#pragma once

class SpinbarModel;

/// As long as it lives, the link to the instrument is off and all ports are free for a service tool.
class LinkPause
{
public:
    /// \a model outlives the pause.
    explicit LinkPause(SpinbarModel &model);
    /// Takes the instrument up again.
    ~LinkPause();
    LinkPause(const LinkPause &) = delete;
    LinkPause &operator=(const LinkPause &) = delete;

private:
    SpinbarModel &m_model;
};
