#pragma once

#include <QDBusVirtualObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>
#include <vector>

namespace etiquetas::test {

/// Tells programs that names of services can be published on the network; none ever is.
class NameService : public QDBusVirtualObject {
  public:
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
};

/// Label printers that need no driver (IPP Everywhere): 203 dots to the inch, black alone, labels
/// of 100 by 40 mm in them, and rolls of up to 101.6 mm taken.
class DriverlessPrinters {
  public:
    /// With a bus of their own, without whose name service no such printer starts.
    DriverlessPrinters();
    ~DriverlessPrinters();
    DriverlessPrinters(const DriverlessPrinters&) = delete;
    DriverlessPrinters& operator=(const DriverlessPrinters&) = delete;

    /// False where the machine lacks the programs.
    [[nodiscard]] bool canStart() const;
    /// Starts a printer with these attributes besides those of all, which sends what it prints to a
    /// port of this machine. Tells its address.
    QString start(const QString& attributes, quint16 receiver);

  private:
    [[nodiscard]] QString busAddress() const;
    void writeFile(const QString& name, const QString& text) const;

    QTemporaryDir folder_{QStringLiteral(P_tmpdir "/driverless-XXXXXX")};
    QProcess bus_;
    NameService names_;
    std::vector<std::unique_ptr<QProcess>> printers_;
};

} // namespace etiquetas::test
