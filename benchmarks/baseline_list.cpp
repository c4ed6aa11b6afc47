#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

// Opens, reads and parses every JSON file under the given folder and does nothing else.
int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    QDirIterator walk(QFile::decodeName(argv[1]), {QStringLiteral("*.json")}, QDir::Files,
                      QDirIterator::Subdirectories);
    int parsed = 0;
    while (walk.hasNext()) {
        QFile file(walk.next());
        if (file.open(QFile::ReadOnly) && QJsonDocument::fromJson(file.readAll()).isObject())
            ++parsed;
    }
    QTextStream(stdout) << parsed << '\n';
    return 0;
}
